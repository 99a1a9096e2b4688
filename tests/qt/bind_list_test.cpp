#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QItemSelectionModel>
#include <QScrollBar>

#include "qt/bind.h"
#include "qt/list_view.h"
#include "tests/qt/bench.h"

namespace velmora::qt {
namespace {

using testing::ElementsAre;

struct BindListTest : testing::Test {
  ListView* bind(int rows) {
    fill(rows);
    auto* made = bench.show(new ListView);
    bindList(bench.refresher, list, made);
    list.onClick = [this] { ++clicks; };
    bench.turn();
    return view = made;
  }
  void fill(int rows) {
    std::vector<Text> texts;
    for (int i = 0; i < rows; ++i) texts.push_back(numbered(i));
    list.fill(std::move(texts));
  }
  std::vector<int> shownSelection() {
    std::vector<int> rows;
    for (const QModelIndex& index : view->selectionModel()->selection().indexes())
      rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
  }
  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers,
                      view->visualRect(view->model()->index(row, 0)).center());
  }

  ui::ListBox list;
  ui::CheckBox option;
  Bench bench;
  ListView* view = nullptr;
  int clicks = 0;
};

TEST_F(BindListTest, WhatTheUserSelectsIsOneClickOnTheListEach) {
  bind(20);
  clickRow(3);
  EXPECT_EQ(clicks, 1);
  EXPECT_THAT(list.selectedIndexes(), ElementsAre(3));
  EXPECT_EQ(list.ListIndex(), 3);
  clickRow(5, Qt::ShiftModifier);
  EXPECT_THAT(list.selectedIndexes(), ElementsAre(3, 4, 5));
  clickRow(9, Qt::ControlModifier);
  EXPECT_THAT(list.selectedIndexes(), ElementsAre(3, 4, 5, 9));
  EXPECT_EQ(list.ListIndex(), 9);
  EXPECT_EQ(clicks, 3);
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_THAT(list.selectedIndexes(), ElementsAre(10));
  EXPECT_EQ(list.ListIndex(), 10) << "known by the time of the click";
  clickRow(10);
  EXPECT_EQ(clicks, 5) << "a click on the selected row is a click too";
  bench.turn();
  EXPECT_EQ(clicks, 5) << "showing the selection raises none";
  QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(list.SelCount(), 20);
  EXPECT_EQ(clicks, 6);
}

TEST_F(BindListTest, WhatCodeSelectsIsShownWithoutFurtherClicks) {
  bind(20);
  list.setSelected(2, true);
  list.setSelected(4, true);
  bench.turn();
  EXPECT_THAT(shownSelection(), ElementsAre(2, 4));
  EXPECT_EQ(view->currentIndex().row(), 4);
  EXPECT_EQ(clicks, 2) << "one from each setSelected alone";
  list.RemoveItem(0);
  bench.turn();
  EXPECT_THAT(shownSelection(), ElementsAre(1, 3));
  list.clearSelection();
  bench.turn();
  EXPECT_TRUE(shownSelection().empty());
}

TEST_F(BindListTest, AClickMayRefillTheListFromWithin) {
  bind(50);
  list.onClick = [this] {
    if (++clicks == 1) fill(2);
  };
  clickRow(7);
  bench.turn();
  EXPECT_EQ(view->model()->rowCount(), 2);
  EXPECT_TRUE(shownSelection().empty());
  EXPECT_EQ(clicks, 1);
}

TEST_F(BindListTest, TheTopRowFollowsTheScrollBarAndLeadsIt) {
  bind(500);
  list.setTopIndex(200);
  bench.turn();
  EXPECT_EQ(view->indexAt(QPoint(1, 1)).row(), 200);
  view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
  EXPECT_GT(list.TopIndex(), 450);
  EXPECT_EQ(list.TopIndex(), view->indexAt(QPoint(1, 1)).row());
  list.setTopIndex(10);
  list.setSelected(300, true);
  bench.turn();
  EXPECT_EQ(list.TopIndex(), 10) << "a place that code asked for goes before the row it selected";
  list.setSelected(400, true);
  bench.turn();
  EXPECT_TRUE(view->viewport()->rect().contains(view->visualRect(view->currentIndex())))
      << "else a row that code selects is brought into sight";
}

TEST_F(BindListTest, APlaceFromBeforeTheWindowWasShownIsKept) {
  fill(500);
  list.setSelected(3, true);
  list.setTopIndex(120);
  auto* early = new ListView(&bench.widget);
  bindList(bench.refresher, list, early);
  bench.turn();
  EXPECT_EQ(list.TopIndex(), 120);
  bench.show(early);
  bench.turn();
  EXPECT_EQ(early->indexAt(QPoint(1, 1)).row(), 120);
  EXPECT_EQ(list.TopIndex(), 120);
}

TEST_F(BindListTest, KeysGoToTheListFirst) {
  bind(10);
  std::vector<ui::Key> keys;
  list.onKey = [&](ui::KeyPress press) {
    keys.push_back(press.key);
    return press.key == ui::Key::Down;
  };
  int opened = 0;
  list.onDoubleClick = [&] { ++opened; };
  clickRow(2);
  QTest::keyClick(view, Qt::Key_Delete, Qt::ShiftModifier);
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_THAT(keys, ElementsAre(ui::Key::Delete, ui::Key::Down, ui::Key::Enter));
  EXPECT_EQ(list.ListIndex(), 2) << "Down was used up";
  EXPECT_EQ(opened, 1) << "Enter opens as a double click does";
  clickRow(4);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                     view->visualRect(view->model()->index(4, 0)).center());
  EXPECT_EQ(opened, 2);
}

TEST_F(BindListTest, LettingGoOfTheMouseComesBehindTheClick) {
  bind(10);
  std::vector<int> clicksAtRelease;
  list.onMouseUp = [&] { clicksAtRelease.push_back(clicks); };
  clickRow(3);
  clickRow(3);
  EXPECT_THAT(clicksAtRelease, ElementsAre(1, 2));
}

TEST_F(BindListTest, TheListKnowsHowManyRowsAreInSight) {
  bind(100);
  const int row = view->visualRect(view->model()->index(0, 0)).height();
  EXPECT_EQ(list.visibleRows(), view->viewport()->height() / row);
  view->resize(400, 5 * row + row / 2);
  bench.turn();
  EXPECT_EQ(list.visibleRows(), 5);
}

TEST_F(BindListTest, TheListUnderTheMouseTakesTheFocusWhenTold) {
  bind(10);
  focusUnderMouse(option, view);
  view->clearFocus();
  QTest::mouseMove(view->viewport(), QPoint(20, 20));
  bench.turn();
  EXPECT_FALSE(view->hasFocus());
  option.setChecked(true);
  QTest::mouseMove(view->viewport(), QPoint(30, 30));
  bench.turn();
  EXPECT_TRUE(view->hasFocus());
}

}  // namespace
}  // namespace velmora::qt
