#include <QShortcut>

#include "qt/bind.h"
#include "qt/form1_view.h"
#include "qt/grid.h"
#include "qt/list_view.h"
#include "qt/pane.h"
#include "qt/repair_view.h"
#include "qt/segment.h"

namespace velmora::qt {

namespace {

EmptyState emptyList(const ui::Form1& form1) {
  if (form1.ostali.chosen())
    return {"No other files", "What lies beside the music in the folders that you add is listed here."};
  return {"No songs yet", "Choose a folder on the left and press Add."};
}

}  // namespace

QWidget* makeFileListPane(Refresher& refresher, ui::Form1& form1, const ui::Form3& base) {
  auto* pane = new Pane;
  QLabel* title = heading({});
  bindLabel(refresher, form1.listTitle, title);
  pane->header()->addWidget(title, 1);

  auto* music = described(new Segment("Show &Music Files"), "Show Music Files", "List the songs");
  auto* other = described(new Segment("Show Oth&er Files"), "Show Other Files",
                          "List the files of these folders that are not music");
  QWidget* view = joined({music, other});
  bindOptionButton(refresher, form1.muzickiFajlovi, music);
  bindOptionButton(refresher, form1.ostali, other);
  pane->header()->addWidget(view);

  auto* list = described(new ListView, "Files", "The files to work on, each with the folder that it lies in");
  list->setToolTip({});  // the rows have tooltips of their own
  list->emptyState = [&form1] { return emptyList(form1); };
  bindList(refresher, form1.List4, list, Rows::Paths);
  focusUnderMouse(base.autoListFocus, list);
  addFileMenu(refresher, form1, list);
  pane->setContent(list);
  list->setFocus();  // where the keyboard starts

  auto* count = described(new QLabel, "Number of files", "Files in the list");
  bindLabel(refresher, form1.countLabel, count);
  auto* size = described(secondary(), "Size of files", "Size of the listed files together");
  bindLabel(refresher, form1.sizeLabel, size);
  pane->footer()->addWidget(count);
  pane->footer()->addWidget(size);
  pane->footer()->addStretch();
  QPushButton* otherFiles = described(button("Ot&her Files", "other-files"), "Other Files",
                                      "Delete or move the listed files that are not music");
  bindButton(refresher, form1.otherFiles, otherFiles);
  pane->footer()->addWidget(otherFiles);
  return pane;
}

}  // namespace velmora::qt
