#include "app/house.h"
#include "app/shut_down.h"
#include "app/wiring.h"

namespace velmora::app {

void wireForm3(House& house) {
  ui::Form3& form3 = house.windows.form3;
  form3.onCloseRequest = [&house] { requestEnd(house); };
  form3.onActivate = [&house] {
    house.front.baseActivated();
    house.progress.restore();
  };

  form3.exit.onClick = [&house] { requestEnd(house); };
  form3.showProcessingWindow.onClick = command(house, form3, [&house] { house.front.showProcessing(); });
  form3.selectMainFolder.onClick = command(house, form3, [&house] { house.base.selectMainFolder(); });
  form3.about.onClick = opens(house, form3, house.windows.frmAbout);
  form3.showTips.onClick = [&house] {
    ui::storeShowTipsAtStartup(house.settings, house.windows.form3.showTips.checked());
  };
  form3.autoListFocus.onClick = [&house] { house.base.autoListFocusClicked(); };
}

}  // namespace velmora::app
