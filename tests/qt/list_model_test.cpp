#include "qt/list_model.h"

#include <gtest/gtest.h>
#include <random>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "qt/text.h"
#include "tests/qt/bench.h"
#include "tests/support/list_reader.h"

namespace velmora::qt {
namespace {

struct ListModelTest : testing::Test {
  void fill(int rows) {
    std::vector<Text> texts;
    for (int i = 0; i < rows; ++i) texts.push_back(numbered(i));
    list.fill(std::move(texts));
  }
  // What a view that followed the notices would show.
  std::vector<Text> rowsOf(const ListModel& model) {
    std::vector<Text> rows;
    for (int i = 0; i < model.rowCount(); ++i)
      rows.push_back(toText(model.data(model.index(i), Qt::DisplayRole).toString()));
    return rows;
  }

  ui::ListBox list;
};

TEST_F(ListModelTest, AnyNumberOfChangesIsOneRemovalOrInsertionAndNeverAReset) {
  fill(100);
  ListModel model(list, Rows::Plain);
  QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
  QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

  for (int i = 0; i < 50; ++i) list.AddItem(u"new");
  model.refresh();
  EXPECT_EQ(inserted.count(), 1);
  for (int i = 0; i < 30; ++i) list.RemoveItem(10 + i);
  model.refresh();
  EXPECT_EQ(removed.count(), 1);
  EXPECT_EQ(model.rowCount(), 120);
  list.Clear();
  fill(3);
  model.refresh();
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(inserted.count(), 1);
  EXPECT_EQ(removed.count(), 2);
  EXPECT_EQ(reset.count(), 0);
  model.refresh();
  EXPECT_EQ(removed.count(), 2) << "nothing changed since";
}

TEST_F(ListModelTest, TellsViewsNothingOfRowsThatStayedAsTheyWere) {
  fill(1000);
  ListModel model(list, Rows::Plain);
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  list.setList(7, u"x");
  list.setList(9, u"y");
  model.refresh();
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 7);
  EXPECT_EQ(changed[0][1].toModelIndex().row(), 9);
  const QPersistentModelIndex last = model.index(999);
  list.RemoveItem(3);
  model.refresh();
  EXPECT_EQ(last.row(), 998) << "a removal moves the rows behind it";
}

TEST_F(ListModelTest, ReadsNothingBeyondTheListBetweenAChangeAndItsRefresh) {
  fill(10);
  ListModel model(list, Rows::Plain);
  list.Clear();
  EXPECT_EQ(model.rowCount(), 10);
  EXPECT_EQ(model.data(model.index(9), Qt::DisplayRole).toString(), "");
  EXPECT_FALSE(model.data(model.index(10), Qt::DisplayRole).isValid());
}

TEST_F(ListModelTest, FollowsAnySequenceOfChanges) {
  ListModel model(list, Rows::Plain);
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  std::mt19937 random(7);
  for (int step = 0; step < 3000; ++step) {
    const int row = list.ListCount() > 0 ? static_cast<int>(random() % list.ListCount()) : 0;
    switch (random() % 8) {
      case 0:
        list.RemoveItem(row);
        break;
      case 1:
        list.setList(row, numbered(step));
        break;
      case 2:
        list.insertItem(row, numbered(step));
        break;
      case 3:
        if (random() % 20 == 0) fill(static_cast<int>(random() % 40));
        break;
      case 4:
        model.refresh();
        EXPECT_EQ(rowsOf(model), test::ListReader::rowsOf(list));
        break;
      default:
        list.AddItem(numbered(step));
    }
  }
}

TEST_F(ListModelTest, ShowsAPathAsItsNameWithTheFolderBesideIt) {
  list.AddItem(u"/music/new/Arvola - Signal.mp3");
  list.AddItem(Text(u"/m/a\ndc80 ") + char16_t(0xDC80) + u"\U0001F3B5.mp3");
  ListModel model(list, Rows::Paths);
  EXPECT_EQ(model.data(model.index(0), Qt::DisplayRole).toString(), "Arvola - Signal.mp3");
  EXPECT_EQ(model.data(model.index(0), ListModel::FolderRole).toString(), "/music/new");
  EXPECT_EQ(model.data(model.index(0), Qt::ToolTipRole).toString(), "/music/new/Arvola - Signal.mp3");
  EXPECT_EQ(model.data(model.index(1), Qt::DisplayRole).toString().toStdU16String(),
            u"a dc80 \uFFFD\U0001F3B5.mp3")
      << "what cannot be drawn has a stand-in";
}

}  // namespace
}  // namespace velmora::qt
