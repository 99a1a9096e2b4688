#include <QAction>
#include <QComboBox>

#include "qt/bind.h"
#include "qt/bind_splitters.h"
#include "qt/column_pane.h"
#include "qt/folder_tree.h"
#include "qt/form2_view.h"
#include "qt/grid.h"
#include "qt/icons.h"
#include "qt/list_view.h"
#include "qt/pane.h"
#include "qt/segment.h"

namespace velmora::qt {

namespace {

constexpr int yearWidth = 14 * unit;

const char* const folderMoveTip = "Make folder with selected name and move files in that folder";
const char* const nameTip = "Make folder with selected name";
const char* const titleMoveTip = "Move selected files";

/// The four columns of the window while they are made.
class Columns {
 public:
  Columns(Refresher& refresher, ui::Form2& form2, ui::Form3& form3)
      : refresher_(refresher), form2_(form2), form3_(form3), keys_(new ColumnKeys(panes_)) {
    addGenres();
    addArtists();
    addAlbums();
    addTitles();
    for (int pane = 0; pane < panes_->count(); ++pane) panes_->setStretchFactor(pane, 1);
    followSplitters(refresher, form3.splitters, panes_);
    for (std::size_t i = 1; i < lists_.size(); ++i) QWidget::setTabOrder(lists_[i - 1], lists_[i]);
  }

  QWidget* widget() {
    lists_.front()->setFocus();  // where the keyboard starts
    return panes_;
  }

 private:
  ColumnPane* addPane(const char* heading) {
    auto* pane = new ColumnPane(heading);
    panes_->addWidget(pane);
    return pane;
  }

  ListView* addList(ColumnPane* pane, ui::ListBox& model, const QString& name, const ColumnPane::Noun& noun,
                    const EmptyState& empty) {
    auto* list = described(new ListView, name, "");
    list->emptyState = [empty] { return empty; };
    bindList(refresher_, model, list);
    focusUnderMouse(form3_.autoListFocus, list);
    pane->showCount(refresher_, model, noun);
    pane->addContent(list);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    keys_->add(list);
    lists_.push_back(list);
    return list;
  }

  QLineEdit* addBox(ColumnPane* pane, ui::TextBox& model, const QString& name, const QString& hint) {
    auto* box = described(textField(), name, hint);
    bindTextBox(refresher_, model, box);
    pane->addName(box);
    return box;
  }

  void addOptions(ColumnPane* pane, ui::OptionButton& byTag, ui::OptionButton& byFolder, const QString& tag,
                  const QString& folder, const QString& what) {
    auto* tagOption =
        described(new Segment(tag), what + " by ID3 tag", "List the " + what + " by what the tags say");
    auto* folderOption = described(new Segment(folder), what + " by FOLDER",
                                   "List the " + what + " by the folders that the files lie in");
    QWidget* options = joined({tagOption, folderOption});
    bindOptionButton(refresher_, byTag, tagOption);
    bindOptionButton(refresher_, byFolder, folderOption);
    pane->addToHeading(options);
  }

  QAction* command(QWidget* owner, ui::Button& model, const QString& text, const QString& icon,
                   const QString& tip, const QKeySequence& keys = {}) {
    auto* action = new QAction(glyph(icon), text, owner);
    bindAction(refresher_, model, action);
    const QString key = keys.toString(QKeySequence::NativeText);
    action->setToolTip(key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
  }

  // Beside the name box, and in the menu of each list of the column.
  void addCommands(ColumnPane* pane, const std::vector<QWidget*>& lists, ui::Button& move,
                   const QString& moveTip, ui::Button* name, const QString& what) {
    QAction* moving = command(pane, move, "&MOVE", "move-up", moveTip, QKeySequence("Ctrl+Return"));
    pane->addCommand(moving, "MOVE " + what, Qt::ToolButtonTextBesideIcon);
    QAction* naming = name ? command(pane, *name, "&Name", "add-folder", nameTip) : nullptr;
    if (naming) pane->addCommand(naming, "Name " + what, Qt::ToolButtonTextBesideIcon);
    for (QWidget* list : lists) {
      list->addAction(moving);
      if (naming) list->addAction(naming);
    }
  }

  void addGenres() {
    ColumnPane* pane = addPane("&Genre");
    addOptions(pane, form2_.genreByTag, form2_.genreByFolder, "&ID3 tag", "&FOLDER", "genres");
    ListView* list = addList(pane, form2_.List1, "New genres", {"genre", "genres"},
                             {"No new music", "Add it in the Processing Window."});
    auto* drive = described(roomy(new QComboBox), "Drive", "Volume of the folders below");
    drive->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bindChoice(refresher_, form2_.Drive1, drive);
    // One volume alone is nothing to choose from.
    auto* room = new QWidget;
    QHBoxLayout* around = row(room);
    around->setContentsMargins(gap, tight, gap, tight);
    around->addWidget(drive);
    refresher_.watch(form2_.Drive1, room, [room, &model = form2_.Drive1] {
      room->setVisible(model.visible() && model.rows().size() > 1);
    });
    pane->addContent(room, 0);
    auto* tree = described(new FolderTree, "New music folders", "The folder whose files are listed");
    bindFolderBox(refresher_, form2_.Dir1, tree);
    pane->addContent(tree);
    keys_->add(tree);

    auto* name = described(roomy(new QComboBox), "Name of new genre", "Genre folder to make or to move to");
    name->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bindComboBox(refresher_, form2_.Combo1, name);
    name->lineEdit()->setAccessibleName(name->accessibleName());
    pane->addName(name);
    addCommands(pane, {list, tree}, form2_.moveGenre, folderMoveTip, &form2_.nameGenre, "genre");
    joinListAndName(list, name);
  }

  void addArtists() {
    ColumnPane* pane = addPane("&Artist");
    ListView* list =
        addList(pane, form2_.List2, "New artists", {"artist", "artists"}, {"No artists", "Select a genre."});
    list->emptyRow = "(without artist)";
    QLineEdit* name = addBox(pane, form2_.Text2, "Name of new artist", "Artist folder to make or to move to");
    addCommands(pane, {list}, form2_.moveArtist, folderMoveTip, &form2_.nameArtist, "artist");
    joinListAndName(list, name);
  }

  void addAlbums() {
    ColumnPane* pane = addPane("A&lbum-Year");
    addOptions(pane, form2_.albumByTag, form2_.albumByFolder, "I&D3 tag", "FOLDE&R", "albums");
    const EmptyState empty = {"No albums", "Select an artist."};
    ListView* byTag = addList(pane, form2_.List3, "New albums", {"album", "albums"}, empty);
    ListView* byFolder = addList(pane, form2_.List8, "New album folders", {"folder", "folders"}, empty);
    QLineEdit* album = addBox(pane, form2_.Text3, "Name of new album", "Album of the folder to make");
    QLineEdit* year = addBox(pane, form2_.Text5, "Year of new album", "Year of the folder to make");
    year->setMaximumWidth(yearWidth);
    album->setPlaceholderText("Album");
    year->setPlaceholderText("Year");
    addCommands(pane, {byTag, byFolder}, form2_.moveAlbum, folderMoveTip, &form2_.nameAlbum, "album");
    joinListAndName(byTag, album);
    joinListAndName(byFolder, album);
  }

  void addTitles() {
    ColumnPane* pane = addPane("&Title");
    ListView* list =
        addList(pane, form2_.List4, "New titles", {"title", "titles"}, {"No titles", "Select an album."});
    QLineEdit* name = addBox(pane, form2_.Text4, "Name of new title", "Title of the song last clicked");
    auto* play = new QAction(glyph("play"), "&Play\tEnter", list);
    QObject::connect(play, &QAction::triggered, play, [&model = form2_.List4] { model.doubleClick(); });
    list->addAction(play);
    addCommands(pane, {list}, form2_.moveTitle, titleMoveTip, nullptr, "titles");
    joinListAndName(list, name);
  }

  Refresher& refresher_;
  ui::Form2& form2_;
  ui::Form3& form3_;
  PaneSplitter* panes_ = new PaneSplitter;
  ColumnKeys* keys_;
  std::vector<QWidget*> lists_;
};

}  // namespace

QWidget* makeNewMusicColumns(Refresher& refresher, ui::Form2& form2, ui::Form3& form3) {
  return Columns(refresher, form2, form3).widget();
}

}  // namespace velmora::qt
