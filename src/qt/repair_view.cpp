#include "qt/repair_view.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "qt/bind.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

struct Command {
  ui::Button ui::RepairTools::*model;
  const char* caption;  // in a menu, with its mnemonic
  const char* icon;
  const char* tip;
};

using Tools = ui::RepairTools;

constexpr Command nameCommands[] = {
    {&Tools::fixSyntax, "&Fix Syntax", "fix", "Put the spelling of the names right"},
    {&Tools::removeString, "Remove &String", "remove-text", "Remove a text from the names"},
    {&Tools::removeTrackNumber, "Remove &Track Number", "remove-track-number",
     "Take a number of up to 3 digits out of the names"},
    {&Tools::removeYearNumber, "Remove &Year Number", "remove-year-number",
     "Take a number of 4 digits out of the names"},
    {&Tools::replaceArtistTitle, "Replace &Artist Title", "swap", "Swap artist and title in the names"},
};
constexpr Command tagCommands[] = {
    {&Tools::fnToId3, "F&N-->ID3", "name-to-tags", "Update ID3 Tags From Filename"},
    {&Tools::id3ToFn, "FN <-- &ID3", "tags-to-name", "Update Filenames From ID3 Tags"},
};
constexpr Command deleteCommand = {&Tools::deleteFiles, "&Delete", "delete", "Move the files to the trash"};
constexpr Command undoCommand = {
    &Tools::undoLastOperation, "&Undo last operation", "undo",
    "Take back the last operation, on all files that it changed (Ctrl+Z in the list)"};
constexpr Command undoNameCommand = {&Tools::undoName, "Undo Na&me", "undo-name",
                                     "Give the files the names that they had before their last rename"};
constexpr Command renameCommand = {&Tools::rename, "Rena&me", "rename",
                                   "Rename the file to what stands in the name box"};
constexpr Command restoreCommand = {&Tools::restoreAllChanges, "&Restore all changes after Check+Fix", "",
                                    "Take back all that the last Check+Fix changed"};

QAction* action(Refresher& refresher, Tools& tools, const Command& command, QObject* owner) {
  auto* made = new QAction(command.caption, owner);
  if (*command.icon) made->setIcon(glyph(command.icon));
  made->setToolTip(command.tip);
  bindAction(refresher, tools.*command.model, made);
  return made;
}

QAction* separator(QObject* owner) {
  auto* made = new QAction(owner);
  made->setSeparator(true);
  return made;
}

QPushButton* nameTool(Refresher& refresher, ui::Button& model, const QString& caption, const QString& icon,
                      const QString& tip) {
  QPushButton* made = described(button(caption, icon), QString(caption).remove('&'), tip);
  bindButton(refresher, model, made);
  return made;
}

}  // namespace

QWidget* makeRepairBar(Refresher& refresher, ui::Form1& form1) {
  Tools& tools = form1.repair;
  auto* bar = described(new QToolBar, "Commands on the selected files", {});
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setIconSize({4 * unit, 4 * unit});
  const auto add = [&](const Command& command) {
    QAction* made = action(refresher, tools, command, bar);
    bar->addAction(made);
    bar->widgetForAction(made)->setAccessibleName(QString(command.caption).remove('&'));
  };

  add(undoCommand);
  auto* more = described(new QToolButton, "More ways back", "More ways back");
  more->setPopupMode(QToolButton::InstantPopup);
  more->setArrowType(Qt::DownArrow);
  more->setStyleSheet("QToolButton::menu-indicator { image: none; }");  // the arrow says it
  more->setAutoRaise(true);
  more->setFixedWidth(6 * unit);  // close to the button that it belongs to
  auto* menu = new QMenu(more);
  for (const Command& command : {undoNameCommand, restoreCommand})
    menu->addAction(action(refresher, tools, command, menu));
  more->setMenu(menu);
  bar->addWidget(more);
  bar->addSeparator();
  for (const Command& command : nameCommands) add(command);
  bar->addSeparator();
  for (const Command& command : tagCommands) add(command);
  bar->addSeparator();
  add(deleteCommand);

  auto* room = new QWidget;
  QHBoxLayout* layout = row(room);
  layout->setContentsMargins(gap, tight, gap, tight);
  layout->addWidget(bar);
  return room;
}

QWidget* makeNameTools(Refresher& refresher, ui::RepairTools& tools) {
  auto* widget = new QWidget;
  QHBoxLayout* layout = row(widget);
  layout->setContentsMargins(0, tight, 0, gap);
  layout->addWidget(nameTool(refresher, tools.rename, "Rename", "rename", renameCommand.tip));
  layout->addWidget(nameTool(refresher, tools.renameFiles, "Rename File(s)", "rename",
                             "Rename the selected songs to the artist and title in the boxes"));
  layout->addWidget(nameTool(refresher, tools.undoName, "Undo Name", "undo-name", undoNameCommand.tip));
  layout->addStretch();
  layout->addWidget(nameTool(refresher, tools.undo, "UNDO", "undo", undoCommand.tip));
  return widget;
}

void addFileMenu(Refresher& refresher, ui::Form1& form1, ListView* list) {
  auto* play = new QAction(glyph("play"), {}, list);
  refresher.watch(form1.ostali, play,
                  [&form1, play] { play->setText(form1.ostali.chosen() ? "&Open" : "&Play"); });
  refresher.watch(form1.List4, play, [&form1, play] { play->setEnabled(form1.List4.ListIndex() >= 0); });
  QObject::connect(play, &QAction::triggered, play, [&form1] { form1.List4.doubleClick(); });

  const auto add = [&](const Command& command) {
    QAction* made = action(refresher, form1.repair, command, list);
    list->addAction(made);
    return made;
  };
  list->addAction(play);
  list->addAction(separator(list));
  add(renameCommand);
  for (const Command& command : nameCommands) add(command);
  list->addAction(separator(list));
  for (const Command& command : tagCommands) add(command);
  list->addAction(separator(list));
  // The list hears the key itself, with and without Shift; here it is only told.
  add(deleteCommand)->setText("&Delete\tDel");
  list->addAction(separator(list));
  QAction* undo = add(undoCommand);
  undo->setShortcut(QKeySequence::Undo);
  undo->setShortcutContext(Qt::WidgetShortcut);
  list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

}  // namespace velmora::qt
