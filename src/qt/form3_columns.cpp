#include <array>

#include <QAction>
#include <QComboBox>

#include "qt/bind.h"
#include "qt/bind_splitters.h"
#include "qt/column_pane.h"
#include "qt/form3_view.h"
#include "qt/grid.h"
#include "qt/icons.h"
#include "qt/list_view.h"
#include "qt/pane.h"

namespace velmora::qt {

namespace {

struct Column {
  const char* heading;  // with its mnemonic
  ColumnPane::Noun noun;
  const char* tip;
  ui::ListBox& list;
  ui::ColumnCommands& commands;
  QString listName;
};

// What an empty column says: what is to be selected or done first.
EmptyState emptyColumn(const ui::Form3& form3, const ui::ListBox& list) {
  if (&list == &form3.List1 && form3.years.List9.SelCount() > 0 && !form3.years.List9.Selected(0))
    return {"No such year", "No album folder of your Music Base bears one of the selected years."};
  if (&list == &form3.List1)
    return {"Your Music Base is empty",
            "Make its first genre with New, or show the new music and MOVE a genre up here."};
  if (&list == &form3.List2)
    return {"No artists", form3.List1.SelCount() == 0 ? "Select a genre." : "This genre holds none yet."};
  if (&list == &form3.List3)
    return {"No albums", form3.List2.SelCount() == 0 ? "Select an artist." : "This artist has none yet."};
  return {"No titles", form3.List3.SelCount() == 0 ? "Select an album." : "No files lie in here."};
}

QAction* separator(QObject* owner) {
  auto* made = new QAction(owner);
  made->setSeparator(true);
  return made;
}

// What a double click and Enter do, for those who look in the menu.
void addPlay(Refresher& refresher, ListView* list, ui::ListBox& model) {
  auto* play = new QAction(glyph("play"), "&Play\tEnter", list);
  refresher.watch(model, play, [&model, play] { play->setEnabled(model.SelCount() > 0); });
  QObject::connect(play, &QAction::triggered, play, [&model] { model.doubleClick(); });
  list->addAction(play);
  list->addAction(separator(list));
}

// The commands of a column stand beside its name box, in the menu of its list, and on keys in the list.
void addCommands(Refresher& refresher, ColumnPane* pane, ListView* list, QLineEdit* name, Column& column) {
  const QString one = column.noun.one;
  const auto add = [&](ui::Button& model, const QString& text, const QString& icon, const QString& tip,
                       const QKeySequence& keys) {
    auto* action = new QAction(glyph(icon), text, list);
    bindAction(refresher, model, action);
    const QString key = keys.toString(QKeySequence::NativeText);
    action->setToolTip(key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    pane->addCommand(action, QString(text).remove(u'&') + u' ' + one, Qt::ToolButtonIconOnly);
    return action;
  };
  ui::ColumnCommands& commands = column.commands;
  if (commands.newFolder.visible())
    list->addAction(add(commands.newFolder, "&New", "add-folder",
                        QStringLiteral("New: make a folder for a new %1").arg(one),
                        QKeySequence("Ctrl+Shift+N")));
  add(commands.ren, "&Ren", "rename",
      QStringLiteral("Ren: give the selected %1 the name in the box").arg(column.noun.many), {});
  // From the list the way to a new name leads through the box.
  auto* rename = new QAction(glyph("rename"), "&Ren\tF2", list);
  QObject::connect(rename, &QAction::triggered, name, [name] {
    name->setFocus(Qt::OtherFocusReason);
    name->selectAll();
  });
  list->addAction(rename);
  list->addAction(add(commands.del, "&Del", "delete",
                      QStringLiteral("Del: move the selected %1 to the trash").arg(column.noun.many),
                      QKeySequence(Qt::Key_Delete)));
  QObject::connect(name, &QLineEdit::returnPressed, name, [&commands] { commands.ren.click(); });
}

QLineEdit* lineOf(QWidget* box) {
  auto* combo = qobject_cast<QComboBox*>(box);
  return combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(box);
}

}  // namespace

QWidget* makeBaseColumns(Refresher& refresher, ui::Form3& form3, QAction* hideButtons) {
  std::array<Column, 4> columns = {{{"&Genre",
                                     {"genre", "genres"},
                                     "Genres: the folders of your Music Base",
                                     form3.List1,
                                     form3.genres,
                                     "Base genres"},
                                    {"&Artist",
                                     {"artist", "artists"},
                                     "Artists of the selected genres",
                                     form3.List2,
                                     form3.artists,
                                     "Base artists"},
                                    {"A&lbum-Year",
                                     {"album", "albums"},
                                     "Albums of the selected artists, oldest first",
                                     form3.List3,
                                     form3.albums,
                                     "Base albums"},
                                    {"&Title",
                                     {"title", "titles"},
                                     "Songs of the selected albums",
                                     form3.List8,
                                     form3.titles,
                                     "Base titles"}}};
  auto* genre = new QComboBox;
  bindComboBox(refresher, form3.Combo1, genre);
  genre->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  std::array<QWidget*, 4> names = {roomy(genre), textField(), textField(), textField()};
  const std::array<ui::TextBox*, 4> boxes = {nullptr, &form3.Text2, &form3.Text3, &form3.Text4};

  auto* panes = new PaneSplitter;
  auto* keys = new ColumnKeys(panes);
  std::array<ListView*, 4> lists{};
  for (std::size_t i = 0; i < columns.size(); ++i) {
    Column& column = columns[i];
    auto* pane = new ColumnPane(column.heading);
    pane->showCount(refresher, column.list, column.noun);
    ListView* list = lists[i] = described(new ListView, column.listName, "");
    list->emptyState = [&form3, &model = column.list] { return emptyColumn(form3, model); };
    bindList(refresher, column.list, list);
    focusUnderMouse(form3.autoListFocus, list);
    pane->addContent(list);

    const QString what = QString(column.noun.one);
    described(names[i], "Name of base " + what,
              "Name of the " + what + " last clicked; type another for New or Ren");
    lineOf(names[i])->setAccessibleName(names[i]->accessibleName());
    if (boxes[i]) bindTextBox(refresher, *boxes[i], lineOf(names[i]));
    pane->addName(names[i]);
    if (&column.list == &form3.List8) addPlay(refresher, list, column.list);
    addCommands(refresher, pane, list, lineOf(names[i]), column);
    list->addAction(separator(list));
    list->addAction(hideButtons);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    joinListAndName(list, names[i]);
    keys->add(list);
    refresher.watch(form3.menuAndButtons, pane,
                    [pane, &form3] { pane->setCommandsVisible(form3.menuAndButtons.visible()); });
    panes->addWidget(pane);
    panes->setStretchFactor(static_cast<int>(i), 1);
  }
  for (std::size_t i = 1; i < lists.size(); ++i) QWidget::setTabOrder(lists[i - 1], lists[i]);
  panes->setFocusProxy(lists.front());  // where the keyboard starts
  bindSplitters(refresher, form3.splitters, panes);
  return panes;
}

}  // namespace velmora::qt
