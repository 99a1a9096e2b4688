#include "app/enable_commands.h"
#include "app/house.h"
#include "app/wiring.h"
#include "core/number_text.h"

namespace velmora::app {

namespace {

void closeRequested(House& house) {
  // A window in front of this one is answered first; a command is stopped, and the window closes behind it.
  if (house.modal.open()) return house.modal.remind();
  if (!house.ending) house.work.whenAtRest([&house] { house.front.closeProcessing(); });
}

void wireLists(House& house) {
  ui::Form1& form1 = house.windows.form1;
  form1.List4.onClick = [&house] {
    if (house.table.puniliste == 1) return;
    enableCommands(house);  // first, since it settles which tag boxes the click may fill
    house.listViews.List4Click();
    enableCommands(house);
  };
  form1.List1.onClick = [&house] { house.listViews.List1Click(); };
  form1.List3.onClick = [&house] { house.completion.List3Click(); };
  form1.Text1.onChange = [&house] { house.completion.boxChanged(); };
  form1.Text8.onChange = [&house] { house.completion.boxChanged(); };
  form1.tags.viewID3v1.onClick = [&house] { house.panel.showTags(); };
  form1.tags.viewID3v2.onClick = [&house] { house.panel.showTags(); };
  form1.folderTree.onClick = [&house] {
    house.listViews.folderTreeClick();
    enableCommands(house);
  };
}

}  // namespace

void wireForm1(House& house) {
  ui::Form1& form1 = house.windows.form1;
  form1.onCloseRequest = [&house] { closeRequested(house); };
  form1.onActivate = [&house] { house.progress.restore(); };
  form1.onDeactivate = [&house] { house.processing.storePlace(); };

  form1.newList.onClick = command(house, form1, "newList", [&house] {
    house.listMaker.newList();
    showUndoState(house);
  });
  form1.add.onClick = command(house, form1, "add", [&house] { house.listMaker.add(); });
  form1.addFolder.onClick = command(house, form1, "addFolder", [&house] { house.listMaker.addFolder(); });
  form1.muzickiFajlovi.onClick =
      command(house, form1, "muzickiFajlovi", [&house] { house.listViews.showMusicFiles(); });
  form1.ostali.onClick = command(house, form1, "ostali", [&house] { house.listViews.showOtherFiles(); });
  form1.otherFiles.onClick = command(house, form1, "otherFiles", [&house] {
    house.otherFiles.open();
    house.modal.run(house.windows.form8);
  });
  form1.assort.onClick = command(house, form1, "assort", [&house] { house.front.assort(); });
  form1.options.onClick = opens(house, form1, "options", house.windows.form5);
  form1.fixOptions.onClick = opens(house, form1, "fixOptions", house.windows.dialog2);
  form1.checkFixOptions.onClick = opens(house, form1, "checkFixOptions", house.windows.form6);
  form1.duplicateOptions.onClick = opens(house, form1, "duplicateOptions", house.windows.form7);
  form1.about.onClick = opens(house, form1, "about", house.windows.frmAbout);
  wireLists(house);

  // Without a progress window there is no Stop button, and the mark is one of a command that is over.
  house.busyFile.givenUp = [&house] { return (house.progress.shown() && house.table.Stop) || house.ending; };
  house.listMaker.onCleared = [&house] {
    house.player.close();
    house.newMusic.forget();
  };
  form1.folderTree.onDropFolders = [&house, &form1](const std::vector<Text>& folders) {
    command(house, form1, "dropFolders", [&] {
      for (const Text& folder : folders) {
        form1.folderTree.setPath(folder);
        house.listMaker.add();
        if (house.table.Stop) break;
      }
    })();
  };
}

}  // namespace velmora::app
