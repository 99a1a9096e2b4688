#include "app/enable_commands.h"
#include "app/house.h"
#include "app/wiring.h"
#include "ui/view_choice.h"

namespace velmora::app {

namespace {

void wirePlayer(House& house) {
  ui::Form1& form1 = house.windows.form1;
  player::PreviewPlayer& player = house.player;
  form1.List4.onDoubleClick = [&player] { player.List4DoubleClick(); };
  form1.player.play.onClick = [&player] { player.play(); };
  form1.player.pause.onClick = [&player] { player.pause(); };
  form1.player.stop.onClick = [&player] { player.stop(); };
  form1.player.Timer4.onTick = [&player] { player.tick(); };
  form1.player.position.onPress = [&player] { player.positionPressed(); };
  form1.player.position.onMove = [&player] { player.positionMoved(); };
  form1.player.position.onRelease = [&player] { player.positionReleased(); };
  form1.preview.onMove = [&player] { player.soundMoved(); };
  house.panel.durationOf = [&player](const Text& path) { return player.durationOf(path); };
}

void wireBatches(House& house) {
  ui::Form1& form1 = house.windows.form1;
  ui::RepairTools& tools = form1.repair;
  batch::NameBatches& names = house.repair.nameBatches;
  batch::TagBatches& tags = house.repair.tagBatches;
  tools.fnToId3.onClick = command(house, form1, "fnToId3", [&tags] { tags.fromNames(); });
  tools.id3ToFn.onClick = command(house, form1, "id3ToFn", [&names] { names.fromTags(); });
  tools.fixSyntax.onClick = command(house, form1, "fixSyntax", [&names] { names.fixSyntax(); });
  tools.removeString.onClick = command(house, form1, "removeString", [&names] { names.removeString(); });
  tools.removeTrackNumber.onClick =
      command(house, form1, "removeTrackNumber", [&names] { names.removeTrackNumber(); });
  tools.removeYearNumber.onClick =
      command(house, form1, "removeYearNumber", [&names] { names.removeYearNumber(); });
  tools.replaceArtistTitle.onClick =
      command(house, form1, "replaceArtistTitle", [&names] { names.replaceArtistTitle(); });
  tools.rename.onClick = command(house, form1, "rename", [&names] { names.rename(); });
  tools.renameFiles.onClick = command(house, form1, "renameFiles", [&names] { names.renameFiles(); });
  form1.update.onClick = command(house, form1, "update", [&tags] { tags.update(); });
  for (ui::CheckBox* mark : {&form1.tags.writeID3v1, &form1.tags.writeID3v2})
    mark->onClick = [&house] { enableCommands(house); };
}

void wireUndo(House& house) {
  ui::Form1& form1 = house.windows.form1;
  ui::RepairTools& tools = form1.repair;
  RepairRoom& room = house.repair;
  tools.undoLastOperation.onClick = command(house, form1, "undoLastOperation", [&house, &room, &form1] {
    room.undoCommands.undoLastOperation();
    showUndoState(house);
    // What was selected before the command is selected again, and the panel shows what is selected.
    if (!form1.List4.Selected(house.table.currentRow - 1)) raise(form1.List4.onClick);
  });
  tools.undo.onClick = [&tools] { tools.undoLastOperation.click(); };
  tools.restoreAllChanges.onClick = command(house, form1, "restoreAllChanges", [&house, &room] {
    room.undoCommands.restoreAllChanges();
    showUndoState(house);
  });
  tools.undoName.onClick = command(house, form1, "undoName", [&room] {
    if (!room.undoName.undoEdit()) room.undoName.undoName();
  });
  house.journal.onNotRecorded = [&house](const platform::FileError& cause) {
    house.services.dialogs.report(u"The undo journal cannot be written: " + cause.description +
                                      u". What could not be undone is not done, and the command ends here.",
                                  u"Undo", {});
  };
  house.journal.onMarker = [&house, &room](std::string_view kind) {
    room.undoCommands.showState(kind);
    house.baseRoom.undo.showState(kind);
  };
}

void wireDelete(House& house) {
  ui::Form1& form1 = house.windows.form1;
  list::DeleteFiles& deleteFiles = house.repair.deleteFiles;
  form1.repair.deleteFiles.onClick =
      command(house, form1, "repair.deleteFiles", [&deleteFiles] { deleteFiles.deleteByButton(); });
  deleteFiles.onSongsChanged = [&house] { house.listViews.List1Click(); };
}

void wireKeys(House& house) {
  ui::Form1& form1 = house.windows.form1;
  const auto whenFree = [&house, &form1](std::string_view name, std::function<void()> run) {
    command(house, form1, name, std::move(run))();
    return true;
  };
  form1.List4.onKey = [&house, whenFree](ui::KeyPress press) {
    if (press.key == ui::Key::Delete)
      return whenFree("deleteFromList",
                      [&house, press] { house.repair.deleteFiles.deleteFromList(press.shift); });
    if (press.key == ui::Key::F12)
      return whenFree("fixTextBox", [&house] { house.repair.fixer.fixTextBox(); });
    return false;
  };
  form1.List2.onKey = [&house, whenFree](ui::KeyPress press) {
    if (press.key != ui::Key::Delete) return false;
    return whenFree("deleteFromSongs",
                    [&house, press] { house.repair.deleteFiles.deleteFromSongs(press.shift); });
  };
  form1.Text1.onKey = [&house, whenFree](ui::KeyPress press) {
    if (press.key == ui::Key::F12)
      return whenFree("fixTextBox", [&house] { house.repair.fixer.fixTextBox(); });
    return house.completion.nameBoxKey(press);
  };
}

}  // namespace

void wireRepair(House& house) {
  wirePlayer(house);
  wireBatches(house);
  wireUndo(house);
  wireDelete(house);
  wireKeys(house);
}

}  // namespace velmora::app
