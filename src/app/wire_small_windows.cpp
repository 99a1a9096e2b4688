#include "app/house.h"
#include "app/wiring.h"

namespace velmora::app {

void wireSmallWindows(House& house) {
  ui::Dialog1& dialog1 = house.windows.dialog1;
  dialog1.stop.onClick = [&house] { house.progress.stop(); };
  dialog1.minimize.onClick = [&house] { house.progress.minimize(); };
  dialog1.onCloseRequest = [&house] { house.progress.stop(); };

  ui::FrmTip& tip = house.windows.frmTip;
  tip.nextTip.onClick = [&house] { house.tips.next(); };
  tip.ok.onClick = [&tip] { tip.hide(); };
  tip.showAtStartup.onClick = [&house] {
    house.tips.showAtStartupClicked();
    house.windows.form3.showTips.setChecked(house.windows.frmTip.showAtStartup.checked());
  };

  ui::FrmAbout& about = house.windows.frmAbout;
  about.version.setText(u"Velmora " VELMORA_VERSION);
  about.programFolder.setText(house.folders.program);
  about.ok.onClick = [&about] { about.hide(); };
}

}  // namespace velmora::app
