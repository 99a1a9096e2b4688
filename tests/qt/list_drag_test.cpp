#include "qt/list_drag.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "core/text.h"
#include "qt/bind.h"
#include "qt/folder_drop.h"
#include "qt/list_view.h"
#include "tests/qt/bench.h"
#include "tests/support/temp_folder.h"

namespace velmora::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ListDragTest, FilesAreCarriedByteByByte) {
  const Text odd = core::fromBytes(
      "/music/50% \xC4\x8C"
      "a\xFFr #1.mp3");
  EXPECT_EQ(addressesOf({u"/music/A B.mp3", odd}),
            "file:///music/A%20B.mp3\r\nfile:///music/50%25%20%C4%8Ca%FFr%20%231.mp3\r\n");
}

TEST(ListDragTest, OfWhatIsDroppedTheFoldersOfThisMachineAreTaken) {
  test::TempFolder folder;
  folder.write(u"a song.mp3", "");
  const Text odd = u"100% " + core::fromBytes("\xFF") + u" new";
  folder.write(odd + u"/song.mp3", "");
  QMimeData data;
  data.setData("text/uri-list",
               "# a comment\r\n" + addressesOf({folder.path(u"a song.mp3"), folder.path(odd), u"/no such"}) +
                   "http://example.org/music\r\nfile://elsewhere/tmp\r\nfile://localhost/tmp\r\n");
  EXPECT_THAT(foldersIn(data), ElementsAre(folder.path(odd), u"/tmp"));
}

TEST(ListDragTest, AListCarriesItsWordOrItsFilesOrNothing) {
  ui::ListBox list;
  EXPECT_EQ(carriedBy(list), nullptr);
  list.dragWord = u"List1";
  EXPECT_EQ(wordIn(*carriedBy(list)), u"List1");
  EXPECT_FALSE(carriedBy(list)->hasUrls());
  QMimeData other;
  other.setData("application/x-velmora-list", "List1");
  EXPECT_EQ(wordIn(other), u"") << "of another program that runs";
  list.dragWord.clear();
  list.dragFiles = [] { return std::vector<Text>{u"/base/Pop"}; };
  EXPECT_EQ(wordIn(*carriedBy(list)), u"");
  EXPECT_EQ(carriedBy(list)->urls(), QList<QUrl>{QUrl("file:///base/Pop")});
  list.dragFiles = [] { return std::vector<Text>{}; };
  EXPECT_EQ(carriedBy(list), nullptr);
}

/// Drags with the mouse from one list to another.
struct DragTest : testing::Test {
  DragTest() {
    source.dragWord = u"List1";
    source.onClick = [this] { ++clicks; };
    for (ui::ListBox* list : {&source, &target}) list->fill({u"0", u"1", u"2", u"3", u"4"});
    target.onDrop = [this](const Text& word) { dropped.push_back(word); };
    sourceView = bench.show(new ListView);
    targetView = bench.show(new ListView);
    sourceView->setGeometry(0, 0, 200, 300);
    targetView->setGeometry(200, 0, 200, 300);
    bindList(bench.refresher, source, sourceView);
    bindList(bench.refresher, target, targetView);
    bench.turn();
  }

  QPoint place(const ListView* view, int row) {
    return view->visualRect(view->model()->index(row, 0)).center();
  }
  void send(QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, sourceView->viewport()->mapToGlobal(at), Qt::LeftButton, buttons, {});
    QApplication::sendEvent(sourceView->viewport(), &event);
  }
  // The display of the tests knows no drags: what one would meet on its way happens while it begins.
  void dragRow(int row) {
    sourceView->carried = [this] {
      auto data = carriedBy(source);
      if (!data) return data;
      QDragEnterEvent enter({50, 40}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
      QApplication::sendEvent(targetView->viewport(), &enter);
      QDropEvent drop({50, 40}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
      if (enter.isAccepted()) QApplication::sendEvent(targetView->viewport(), &drop);
      bench.turn();
      inDrag = !dropped.empty();
      return data;
    };
    const QPoint from = place(sourceView, row);
    QTest::mousePress(sourceView->viewport(), Qt::LeftButton, {}, from);
    send(QEvent::MouseMove, from + QPoint(20, 5), Qt::LeftButton);
    send(QEvent::MouseMove, from + QPoint(40, 5), Qt::LeftButton);
    bench.turn();
  }

  ui::ListBox source, target;
  Bench bench;
  ListView* sourceView;
  ListView* targetView;
  std::vector<Text> dropped;
  int clicks = 0;
  bool inDrag = false;
};

TEST_F(DragTest, ADropIsTheWordOfTheListOnceTheDragIsOver) {
  dragRow(2);
  EXPECT_THAT(dropped, ElementsAre(u"List1"));
  EXPECT_FALSE(inDrag) << "a command must not run inside the drag";
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(2)) << "what the drag began on";
  EXPECT_EQ(source.ListCount(), 5) << "only a copy was dragged";
}

TEST_F(DragTest, DraggingOneOfSeveralSelectedRowsTakesAllOfThem) {
  source.select({1, 2, 4}, 4);
  bench.turn();
  clicks = 0;
  dragRow(2);
  EXPECT_THAT(dropped, ElementsAre(u"List1"));
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(1, 2, 4));
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(sourceView->viewport(), Qt::LeftButton, {}, place(sourceView, 2));
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(2)) << "a click without a drag selects the row alone";
}

TEST_F(DragTest, AClickOnARowThatCodeSelectedKeepsItSelected) {
  source.setSelected(0, true);
  clicks = 0;
  QTest::mouseClick(sourceView->viewport(), Qt::LeftButton, {}, place(sourceView, 0));
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(0));
  EXPECT_EQ(clicks, 1);
  bench.turn();
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(0));
  EXPECT_EQ(clicks, 1);
}

TEST_F(DragTest, AListTakesItsOneWordAlone) {
  target.dropWord = u"List2";
  dragRow(2);
  EXPECT_THAT(dropped, IsEmpty());
  source.dragWord = u"List2";
  dragRow(2);
  EXPECT_THAT(dropped, ElementsAre(u"List2"));
  target.dropWord.clear();
  source.dragWord = u"List4";
  dragRow(2);
  EXPECT_THAT(dropped, ElementsAre(u"List2", u"List4")) << "a list that tells none takes any";
  target.setEnabled(false);
  dragRow(2);
  EXPECT_EQ(dropped.size(), 2U);
}

TEST_F(DragTest, RowsThatCarryNothingAreSelectedByDragging) {
  source.dragWord.clear();
  const QPoint from = place(sourceView, 1);
  QTest::mousePress(sourceView->viewport(), Qt::LeftButton, {}, from);
  send(QEvent::MouseMove, place(sourceView, 2), Qt::LeftButton);
  send(QEvent::MouseMove, place(sourceView, 3), Qt::LeftButton);
  QTest::mouseRelease(sourceView->viewport(), Qt::LeftButton, {}, place(sourceView, 3));
  EXPECT_THAT(source.selectedIndexes(), ElementsAre(1, 2, 3));
}

/// What another program drags over the window.
struct FolderDropTest : testing::Test {
  FolderDropTest() {
    folder.write(u"New music/a song.mp3", "");
    model.onDropFolders = [this](const std::vector<Text>& paths) { dropped = paths; };
    box = bench.show(new QLineEdit);
    takeDroppedFolders(model, &bench.widget);
  }

  bool drop(QWidget* on, const std::vector<Text>& paths,
            Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction) {
    QMimeData data;
    data.setData("text/uri-list", addressesOf(paths));
    data.setText("an address");
    QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(on, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event({5, 5}, actions, &data, Qt::LeftButton, {});
    event.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(on, &event);
    lastAction = event.dropAction();
    bench.turn();
    return event.isAccepted();
  }

  test::TempFolder folder;
  ui::FolderBox model;
  Bench bench;
  QLineEdit* box;
  std::vector<Text> dropped;
  Qt::DropAction lastAction = Qt::IgnoreAction;
};

TEST_F(FolderDropTest, FoldersAreTakenAsCopiesWhateverTheOtherProgramProposes) {
  const Text music = folder.path(u"New music");
  EXPECT_TRUE(drop(&bench.widget, {music, folder.path(u"New music/a song.mp3")}));
  EXPECT_THAT(dropped, ElementsAre(music));
  EXPECT_EQ(lastAction, Qt::CopyAction);
  EXPECT_FALSE(drop(&bench.widget, {music}, Qt::MoveAction));
}

TEST_F(FolderDropTest, FilesAloneAndABusyTreeRefuse) {
  EXPECT_FALSE(drop(&bench.widget, {folder.path(u"New music/a song.mp3")}));
  model.onDropFolders = nullptr;
  EXPECT_FALSE(drop(&bench.widget, {folder.path(u"New music")}));
  EXPECT_THAT(dropped, IsEmpty());
}

TEST_F(FolderDropTest, ABoxOfTextLeavesFoldersToTheWindowAndKeepsTexts) {
  EXPECT_TRUE(drop(box, {folder.path(u"New music")}));
  EXPECT_EQ(dropped.size(), 1U);
  EXPECT_TRUE(box->text().isEmpty());
  EXPECT_TRUE(drop(box, {}));
  EXPECT_EQ(box->text(), "an address");
}

}  // namespace
}  // namespace velmora::qt
