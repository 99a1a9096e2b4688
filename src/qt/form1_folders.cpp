
#include "qt/bind.h"
#include "qt/folder_tree.h"
#include "qt/form1_view.h"
#include "qt/grid.h"
#include "qt/pane.h"

namespace velmora::qt {

QWidget* makeFolderPane(Refresher& refresher, ui::Form1& form1) {
  auto* pane = new Pane;
  auto* tree = described(new FolderTree, "Folders", "The folder that Add works on");
  QLabel* title = heading("Fol&ders");
  title->setBuddy(tree);
  pane->header()->addWidget(title, 1);
  pane->setContent(tree);
  bindFolderBox(refresher, form1.folderTree, tree);

  const auto add = [&](ui::Button& model, QPushButton* widget) {
    bindButton(refresher, model, widget);
    pane->footer()->addWidget(widget);
  };
  add(form1.add, described(button("&Add", "add"), "Add",
                           "Add the music of the selected folder, and of all folders in it, to the list"));
  add(form1.addFolder, described(button("Add &Folder", "add-folder"), "Add Folder",
                                 "Choose a folder and add its music to the list"));
  pane->footer()->addStretch();
  add(form1.newList, described(button("&New List", "new-list"), "New List",
                               "Start over with an empty list. No file is changed"));
  return pane;
}

}  // namespace velmora::qt
