#include "ui/list_box.h"

#include "tests/support/list_reader.h"

namespace velmora::ui {
namespace {

struct ListBoxTest : testing::Test, test::ListReader {
  ListBox list;
  int clicks = 0;

  void SetUp() override {
    list.fill({u"a", u"b", u"c", u"d"});
    list.onClick = [&] { ++clicks; };
  }
};

TEST_F(ListBoxTest, SelectingByCodeClicksAsTheUserDoesAndOnlyOnAChange) {
  list.setSelected(1, true);
  list.setSelected(1, true);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.ListIndex(), 1);
  list.setSelected(1, false);
  EXPECT_EQ(clicks, 2);
  list.select({0, 2, 99, -5}, 2);
  EXPECT_EQ(clicks, 3) << "one click for one act of the user";
  EXPECT_EQ(list.selectedIndexes(), (std::vector<int>{0, 2}));
  EXPECT_EQ(list.SelCount(), 2);
  list.clearSelection();
  list.clearSelection();
  EXPECT_EQ(clicks, 4);
}

TEST_F(ListBoxTest, IndexesOutsideReadAsEmptyRowsAndChangeNothing) {
  for (const int index : {-1, 4, 1'000'000}) {
    EXPECT_EQ(list.List(index), u"");
    EXPECT_EQ(list.ItemData(index), 0);
    EXPECT_FALSE(list.Selected(index));
    list.setSelected(index, true);
    list.setList(index, u"x");
    list.RemoveItem(index);
    list.setListIndex(index);
  }
  EXPECT_EQ(list.ListCount(), 4);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ListBoxTest, RemovingAndInsertingKeepsMarksOnTheirRows) {
  list.select({1, 3}, 3);
  list.insertItem(0, u"new", 7);
  EXPECT_EQ(list.selectedIndexes(), (std::vector<int>{2, 4}));
  list.insertItem(4, u"before the current row", 0);
  EXPECT_EQ(list.ListIndex(), 5);
  list.RemoveItem(4);
  EXPECT_EQ(list.ListIndex(), 4);
  list.RemoveItem(2);
  EXPECT_EQ(list.selectedIndexes(), (std::vector<int>{3}));
  EXPECT_EQ(list.SelCount(), 1);
  EXPECT_EQ(rows(list), (test::Names{"new", "a", "c", "d"}));
  list.setTopIndex(50);
  EXPECT_EQ(list.TopIndex(), 3);
  while (list.ListCount() > 0) list.RemoveItem(0);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.TopIndex(), 0);
  EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(ListBoxTest, ASingleListHasOneMarkAndADisabledOneListensToCodeAlone) {
  ListBox single(ListBox::Selection::Single);
  single.fill({u"a", u"b"});
  single.setListIndex(0);
  single.setListIndex(1);
  EXPECT_EQ(single.selectedIndexes(), (std::vector<int>{1}));
  list.setEnabled(false);
  list.select({1}, 1);
  EXPECT_EQ(list.SelCount(), 0);
  list.setSelected(1, true);
  EXPECT_EQ(list.SelCount(), 1);
}

TEST_F(ListBoxTest, SortedListPlacesRowsWithoutRegardToCase) {
  ListBox sorted(ListBox::Selection::Multi, true);
  for (const char16_t* text : {u"beta", u"Alpha", u"gamma", u"alpha", u"BETA"}) sorted.AddItem(text);
  EXPECT_EQ(rows(sorted), (test::Names{"Alpha", "alpha", "beta", "BETA", "gamma"}));
}

TEST_F(ListBoxTest, FillingIsOneNoticeForTheView) {
  int notices = 0;
  list.viewChanged = [&] { ++notices; };
  list.fill(std::vector<Text>(100'000, u"row"));
  EXPECT_EQ(notices, 1);
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace velmora::ui
