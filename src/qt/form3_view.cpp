#include "qt/form3_view.h"

#include <QAction>
#include <QMenuBar>
#include <QStackedWidget>
#include <QToolButton>

#include "qt/bind.h"
#include "qt/elided_label.h"
#include "qt/grid.h"
#include "qt/icons.h"
#include "qt/player_bar.h"
#include "qt/year_popup.h"

namespace velmora::qt {

namespace {

constexpr QSize designSize(1100, 680);
constexpr int playerWidth = 130 * unit;

QWidget* makeBottomBar(Refresher& refresher, ui::Form1& form1) {
  auto* bar = new QWidget;
  QHBoxLayout* layout = row(bar);
  layout->setContentsMargins(gap, tight, gap, tight);
  QWidget* player = makePlayerBar(refresher, form1);
  player->setMaximumWidth(playerWidth);
  layout->addWidget(player, 1);
  layout->addStretch();
  return bar;
}

}  // namespace

Form3View::Form3View(const ViewContext& context, ui::Windows& windows) {
  Refresher& refresher = context.refresher;
  ui::Form3& form3 = windows.form3;
  makeMenus(refresher, form3, windows.form2);

  auto* hideButtons = new QAction("Show &menu and buttons", this);
  hideButtons->setShortcut(QKeySequence("Ctrl+M"));
  hideButtons->setCheckable(true);
  bindAction(refresher, form3.showMenuAndButtons, hideButtons);
  addAction(hideButtons);  // its key must work while there is no menu bar
  QWidget* columns = makeBaseColumns(refresher, form3, hideButtons);
  QWidget* welcome = makeWelcome(refresher, form3);
  auto* pages = new QStackedWidget;
  pages->addWidget(welcome);
  pages->addWidget(columns);
  refresher.watch(form3.rootLabel, pages, [&form3, pages, welcome, columns] {
    QWidget* page = form3.rootLabel.text().empty() ? welcome : columns;
    if (pages->currentWidget() != page) pages->setCurrentWidget(page);
    page->setFocus();
  });

  QWidget* topBar = makeTopBar(refresher, form3);
  auto* content = new QWidget;
  QVBoxLayout* layout = column(content, 0);
  layout->addWidget(topBar);
  layout->addWidget(line());
  layout->addWidget(pages, 1);
  layout->addWidget(line());
  layout->addWidget(makeBottomBar(refresher, windows.form1));
  setCentralWidget(content);
  refresher.watch(form3.menuAndButtons, this, [this, &form3, topBar, hideButtons] {
    menuBar()->setVisible(form3.menuAndButtons.visible());
    topBar->setVisible(form3.menuAndButtons.visible());
    hideButtons->setChecked(form3.menuAndButtons.visible());
  });
  setWindowIcon(programIcon());
  bindWindow(context, form3, this, designSize);
}

void Form3View::makeMenus(Refresher& refresher, ui::Form3& form3, ui::Form2& form2) {
  const auto add = [&](QMenu* menu, const QString& text, const QString& icon, ui::Button& model,
                       const QString& keys = {}) {
    QAction* action = menu->addAction(icon.isEmpty() ? QIcon() : glyph(icon), text);
    action->setShortcut(QKeySequence(keys));
    bindAction(refresher, model, action);
    addAction(action);
  };
  QMenu* base = menuBar()->addMenu("&Music Base");
  add(base, "&Select main folder for Your Music Base", "music-base", form3.selectMainFolder, "Ctrl+O");
  base->addSeparator();
  add(base, "Show &Processing Window", "processing", form3.showProcessingWindow, "Ctrl+P");
  add(base, "Show &New Music Window", "new-music", form3.showNewMusic, "Ctrl+N");
  // Here too, since the New Music Window closes when the last file has been moved.
  add(base, "&Undo Last Operation", "undo", form2.undoLastOperation, "Ctrl+Z");
  base->addSeparator();
  add(base, "Select &Years", "calendar", form3.selectYears, "Ctrl+Y");
  base->addSeparator();
  add(base, "E&xit", "exit", form3.exit, "Ctrl+Q");

  QMenu* options = menuBar()->addMenu("&Options");
  const auto addOption = [&](const QString& text, ui::CheckBox& model) {
    bindCheckAction(refresher, model, options->addAction(text));
  };
  if (form3.plneso.onClick) addOption("Play &Next Song", form3.plneso);
  addOption("Play With &One Click", form3.plfr);
  addOption("Show A&rtist In Title List", form3.showAutor);
  addOption("&Auto List Focus", form3.autoListFocus);
  addOption("Show &Tips At Startup", form3.showTips);
  options->addSeparator();
  QAction* buttons = options->addAction("Show &menu and buttons\tCtrl+M");
  buttons->setCheckable(true);
  bindAction(refresher, form3.showMenuAndButtons, buttons);
  refresher.watch(form3.menuAndButtons, buttons,
                  [buttons, &form3] { buttons->setChecked(form3.menuAndButtons.visible()); });

  QMenu* help = menuBar()->addMenu("&Help");
  add(help, "&About", "about", form3.about);
}

QWidget* Form3View::makeTopBar(Refresher& refresher, ui::Form3& form3) {
  auto* bar = new QWidget;
  QHBoxLayout* layout = row(bar);
  layout->setContentsMargins(gap, tight, gap, tight);

  auto* choose = described(new QToolButton, "Select main folder for Your Music Base",
                           "Select main folder for Your Music Base");
  choose->setIcon(glyph("music-base"));
  choose->setAutoRaise(true);
  choose->setFocusPolicy(Qt::TabFocus);
  choose->setMinimumSize(7 * unit, 7 * unit);
  bindButton(refresher, form3.selectMainFolder, choose);
  layout->addWidget(choose);
  auto* root = described(new ElidedLabel, "Music Base folder", "The folder of your Music Base");
  bindLabel(refresher, form3.rootLabel, root, "No Music Base folder yet");
  layout->addWidget(root, 1);

  auto* years = described(button("Select &Years", "calendar"), "Select Years",
                          "Show folders with selected years in name of album subfolders");
  bindButton(refresher, form3.selectYears, years);
  new YearPopup(refresher, form3.years, years);
  layout->addWidget(years);
  const auto add = [&](const QString& text, const QString& icon, const QString& tip, ui::Button& model) {
    auto* made = described(button(text, icon), QString(text).remove(u'&'), tip);
    bindButton(refresher, model, made);
    layout->addWidget(made);
  };
  add("Show &New Music Window", "new-music", "New files by genre, artist, album and title, beneath the base",
      form3.showNewMusic);
  add("Show &Processing Window", "processing", "Add new music, look it over and repair names and tags",
      form3.showProcessingWindow);
  return bar;
}

}  // namespace velmora::qt
