#include <utility>

#include "app/enable_commands.h"
#include "app/house.h"
#include "app/shut_down.h"
#include "app/wiring.h"
#include "base/busy.h"

namespace velmora::app {

namespace {

void wireMenus(House& house) {
  ui::Form3& form3 = house.windows.form3;
  form3.exit.onClick = [&house] { requestEnd(house); };
  form3.showProcessingWindow.onClick =
      command(house, form3, "showProcessingWindow", [&house] { house.front.showProcessing(); });
  form3.showNewMusic.onClick = command(house, form3, "showNewMusic", [&house] { house.newMusic.toggle(); });
  form3.selectMainFolder.onClick =
      command(house, form3, "selectMainFolder", [&house] { house.base.selectMainFolder(); });
  house.base.onRootChosen = [&house] {
    if (house.windows.form2.visible()) house.baseRoom.summary.moze();
  };
  form3.showMenuAndButtons.onClick = [&house] { house.base.toggleMenuAndButtons(); };
  form3.about.onClick = opens(house, form3, "about", house.windows.frmAbout);
  form3.showTips.onClick = [&house] {
    ui::storeShowTipsAtStartup(house.settings, house.windows.form3.showTips.checked());
  };
  const auto stores = [&house](ui::CheckBox& mark, TextView key) {
    mark.onClick = [&house, &mark, key] { house.base.storeMark(key, mark.checked()); };
  };
  stores(form3.plfr, u"plfr");
  stores(form3.autoListFocus, u"aatolf");
  form3.showAutor.onClick = [&house] {
    house.base.storeMark(u"showautor", house.windows.form3.showAutor.checked());
    house.baseRoom.lists.fillTitles();
  };
}

void wireColumns(House& house) {
  ui::Form3& form3 = house.windows.form3;
  base::BaseLists& lists = house.baseRoom.lists;
  const auto column = [&house, &lists](ui::ListBox& list, void (base::BaseLists::*click)(), ui::Button& del) {
    list.onClick = [&house, &lists, click] {
      (lists.*click)();
      enableBaseCommands(house);
    };
    list.onKey = [&lists, &list, &del](ui::KeyPress press) {
      if (press.key != ui::Key::Delete) return lists.listKey(list, press);
      del.click();
      return true;
    };
    list.dragFiles = [&lists, &list] { return lists.draggedFiles(list); };
  };
  column(form3.List1, &base::BaseLists::List1Click, form3.genres.del);
  column(form3.List2, &base::BaseLists::List2Click, form3.artists.del);
  column(form3.List3, &base::BaseLists::List3Click, form3.albums.del);
  column(form3.List8, &base::BaseLists::List8Click, form3.titles.del);
  form3.List3.onMouseUp = [&lists] { lists.List3MouseUp(); };
  form3.List8.onDoubleClick = [&lists] { lists.List8DoubleClick(); };
  lists.onPlay = [&house](const Text& path) { house.player.playFile(path); };
}

/// A command of the Music Base Window itself. The notice that it came to the front may be late, and the
/// folders that a command of its own makes must not stand in the journal.
std::function<void()> baseCommand(House& house, std::string_view name, std::function<void()> run) {
  return command(house, house.windows.form3, name, [&house, run = std::move(run)] {
    house.front.baseActivated();
    house.front.settle();
    run();
  });
}

void wireFolderCommands(House& house) {
  ui::Form3& form3 = house.windows.form3;
  BaseRoom& room = house.baseRoom;
  form3.genres.newFolder.onClick =
      baseCommand(house, "genres.newFolder", [&room] { room.newFolders.newGenre(); });
  form3.artists.newFolder.onClick =
      baseCommand(house, "artists.newFolder", [&room] { room.newFolders.newArtist(); });
  form3.albums.newFolder.onClick =
      baseCommand(house, "albums.newFolder", [&room] { room.newFolders.newAlbum(); });
  const auto folders = [&house, &room](ui::Button& button, std::string_view name,
                                       void (base::FolderCommands::*run)()) {
    button.onClick = baseCommand(house, name, [&room, run] { (room.folderCommands.*run)(); });
  };
  folders(form3.genres.ren, "genres.ren", &base::FolderCommands::renGenre);
  folders(form3.artists.ren, "artists.ren", &base::FolderCommands::renArtist);
  folders(form3.albums.ren, "albums.ren", &base::FolderCommands::renAlbum);
  folders(form3.genres.del, "genres.del", &base::FolderCommands::delGenre);
  folders(form3.artists.del, "artists.del", &base::FolderCommands::delArtist);
  folders(form3.albums.del, "albums.del", &base::FolderCommands::delAlbum);
  form3.titles.ren.onClick = baseCommand(house, "titles.ren", [&room] { room.fileCommands.ren(); });
  form3.titles.del.onClick = baseCommand(house, "titles.del", [&room] { room.fileCommands.del(); });
  room.newFolders.onSelectRoot = [&house] { house.base.selectMainFolder(); };
}

void wireYears(House& house) {
  ui::Form3& form3 = house.windows.form3;
  base::YearFilter& years = house.baseRoom.years;
  form3.selectYears.onClick = [&years] { years.open(); };
  form3.years.ok.onClick = command(house, form3, "years.ok", [&years] { years.ok(); });
  form3.years.cancel.onClick = [&years] { years.cancel(); };
  years.onApplied = [&house] {
    const base::Busy busy(house.windows, house.progress, Text(base::YearFilter::busyText));
    house.progress.UpdateProgress(100);
    house.baseRoom.lists.IzlistajBazu();
  };
}

}  // namespace

void wireForm3(House& house) {
  ui::Form3& form3 = house.windows.form3;
  form3.onCloseRequest = [&house] { requestEnd(house); };
  form3.onActivate = [&house] {
    house.front.baseActivated();
    house.progress.restore();
  };
  wireMenus(house);
  wireColumns(house);
  wireFolderCommands(house);
  wireYears(house);
}

}  // namespace velmora::app
