#include "qt/form1_view.h"

#include <QMenu>

#include "qt/bind.h"
#include "qt/elided_label.h"
#include "qt/folder_drop.h"
#include "qt/grid.h"
#include "qt/icons.h"
#include "qt/pane.h"
#include "qt/player_bar.h"
#include "qt/repair_view.h"

namespace velmora::qt {

namespace {

constexpr QSize designSize(1560, 920);
constexpr int listPane = 1;  // takes the room that a larger window has
constexpr int listPaneShare = 600;
constexpr int sidePaneShare = 300;
constexpr int playerWidth = 110 * unit;

// All option windows behind one button.
QWidget* makeOptions(Refresher& refresher, ui::Form1& form1) {
  QPushButton* options =
      described(button("&Options", "options"), "Options", "How the program goes about its work");
  auto* menu = new QMenu(options);
  const auto add = [&](const QString& text, const QString& icon, ui::Button& model) {
    bindAction(refresher, model, menu->addAction(icon.isEmpty() ? QIcon() : glyph(icon), text));
  };
  add("&Extensions of music files", "music-files", form1.options);
  add("&Fix Options", "fix-options", form1.fixOptions);
  add("&Check+Fix Options", {}, form1.checkFixOptions);
  add("Find &Duplicates - Settings", {}, form1.duplicateOptions);
  menu->addSeparator();
  add("&About Velmora", "about", form1.about);
  options->setMenu(menu);
  return options;
}

QWidget* makeBottomBar(Refresher& refresher, ui::Form1& form1) {
  auto* bar = new QWidget;
  QVBoxLayout* stack = column(bar, 0);
  stack->addWidget(line());
  QHBoxLayout* layout = row();
  layout->setContentsMargins(edge, gap, edge, gap);
  stack->addLayout(layout);

  auto* status = described(new ElidedLabel, "Status", "What the program is doing");
  bindLabel(refresher, form1.statusLabel, status);
  QWidget* player = makePlayerBar(refresher, form1);
  player->setFixedWidth(playerWidth);
  layout->addWidget(player);
  layout->addSpacing(gap);
  layout->addWidget(status, 1);
  layout->addWidget(makeOptions(refresher, form1));
  QPushButton* assort =
      described(button("A&ssort Files Per Folders", "music-base"), "Assort Files Per Folders",
                "On to the Music Base Window, to file the songs into their folders");
  bindButton(refresher, form1.assort, assort);
  layout->addWidget(assort);
  return bar;
}

}  // namespace

Form1View::Form1View(const ViewContext& context, ui::Form1& form1, const ui::Form3& base) {
  Refresher& refresher = context.refresher;
  auto* panes = new PaneSplitter;
  panes->addWidget(makeFolderPane(refresher, form1));
  panes->addWidget(makeFileListPane(refresher, form1, base));
  panes->addWidget(makeFilePanel(refresher, form1, this));
  for (int pane = 0; pane < panes->count(); ++pane) panes->setStretchFactor(pane, pane == listPane ? 1 : 0);
  panes->setSizes({sidePaneShare, listPaneShare, sidePaneShare});

  QVBoxLayout* layout = column(this, 0);
  layout->addWidget(makeRepairBar(refresher, form1));
  layout->addWidget(line());
  layout->addWidget(panes, 1);
  layout->addWidget(makeBottomBar(refresher, form1));
  takeDroppedFolders(form1.folderTree, this);
  setWindowIcon(programIcon());
  bindWindow(context, form1, this, designSize);
}

}  // namespace velmora::qt
