#include "app/house.h"
#include "app/wiring.h"

namespace velmora::app {

void wireForm8(House& house) {
  ui::Form8& form8 = house.windows.form8;
  form8.deleteFiles.onClick =
      command(house, form8, "deleteFiles", [&house] { house.otherFiles.deleteSelected(); });
  form8.moveTo.onClick = command(house, form8, "moveTo", [&house] { house.otherFiles.moveSelected(); });
  const auto close = [&house] {
    // While files are on their way the window stays, and the way ends at the next file.
    if (house.work.commandRunning()) return house.progress.stop();
    house.windows.form8.hide();
  };
  form8.close.onClick = close;
  form8.onCloseRequest = close;
}

}  // namespace velmora::app
