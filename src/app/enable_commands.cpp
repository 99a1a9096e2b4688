#include "app/enable_commands.h"

#include "app/house.h"

namespace velmora::app {

void enableCommands(House& house) {
  const core::TrackTable& table = house.table;
  ui::Form1& form1 = house.windows.form1;
  const bool hasRows = table.brojfajlova() >= 1;
  const bool musicView = form1.muzickiFajlovi.chosen();
  const bool hasCurrentRow = table.currentRow >= 1 && table.currentRow <= table.workingRows();

  form1.newList.setEnabled(hasRows || !table.niznomusic.empty() || !table.bazepesama.empty());
  form1.add.setEnabled(!form1.folderTree.path().empty());
  form1.otherFiles.setEnabled(!table.niznomusic.empty());
  form1.assort.setEnabled(hasRows);
  form1.update.setEnabled(musicView && hasCurrentRow);
}

}  // namespace velmora::app
