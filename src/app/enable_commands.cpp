#include "app/enable_commands.h"

#include <string>

#include "app/guarded.h"
#include "app/house.h"

namespace velmora::app {

namespace {}  // namespace

void enableCommands(House& house) {
  const core::TrackTable& table = house.table;
  ui::Form1& form1 = house.windows.form1;
  const bool hasRows = table.brojfajlova() >= 1;
  const bool musicView = form1.muzickiFajlovi.chosen();

  form1.newList.setEnabled(hasRows || !table.niznomusic.empty() || !table.bazepesama.empty());
  form1.add.setEnabled(!form1.folderTree.path().empty());
  form1.otherFiles.setEnabled(!table.niznomusic.empty());
  form1.assort.setEnabled(hasRows);
  const bool songsView = table.vrsta == core::Review::ArtistList;
  house.repair.fields.selectionChanged(musicView && !songsView && form1.List4.SelCount() > 1);
  const int files = musicView ? form1.List4.SelCount() : 0;
  const bool selected = files > 0;
  const bool songs = songsView && form1.List2.SelCount() > 0;
  // A single file takes what stands in the panel, which must be its own.
  const bool shown = house.panel.shows(table.currentRow);
  const bool writes = form1.tags.writeID3v1.checked() || form1.tags.writeID3v2.checked();
  form1.update.setEnabled(writes && (songsView ? songs && shown : selected && (files > 1 || shown)));

  ui::RepairTools& tools = form1.repair;
  for (ui::Button* batch : {&tools.id3ToFn, &tools.fixSyntax, &tools.removeString, &tools.removeTrackNumber,
                            &tools.removeYearNumber, &tools.replaceArtistTitle, &tools.undoName})
    batch->setEnabled(selected);
  tools.fnToId3.setEnabled(writes && (songsView ? songs : selected));
  tools.rename.setEnabled(selected && (files > 1 || shown));
  tools.renameFiles.setVisible(songsView);
  tools.renameFiles.setEnabled(songs);
  tools.deleteFiles.setEnabled(form1.List4.SelCount() > 0);
  enableBaseCommands(house);
}

void showUndoState(House& house) {
  guarded([&house] {
    const std::string top = house.journal.lastUndoMarker();
    house.repair.undoCommands.showState(top);
    house.baseRoom.undo.showState(top);
  });
}

}  // namespace velmora::app
