#include "newmusic/window_snapshot.h"

#include <algorithm>

#include "tests/newmusic/new_music_world.h"

namespace velmora {
namespace {

using test::Names;

struct WindowSnapshotTest : test::NewMusicWorld {
  void fill(int count) {
    show({u"Pop/Alpha/First  1998/Alpha - a.mp3", u"Pop/Alpha/First  1998/Alpha - b.mp3", u"Rock/Beta/"});
    for (int i = 100; i < 100 + count; ++i)
      addRow(u"/new/A" + core::plain(std::int64_t{i}) + u" - x.mp3", {u"Rock", u"One", u"2001"});
    openBoth();
    click(form3.List1, {u"Pop"});
    const ui::QuietLists quietly(table);
    click(form2.List1, {u"Rock"});
  }
};

TEST_F(WindowSnapshotTest, ItHasTwentySixSections) {
  fill(4);
  {
    const ui::QuietLists quietly(table);
    form1.List4.select({0, 2}, 2);
    form2.List2.select({1, 3}, 3);
    click(form2.List3, {u"One  2001"});
    form2.List4.select({1}, 1);
    form2.List4.setTopIndex(1);
    form3.List8.select({1}, 1);
  }
  const Text snapshot = room.snapshot.windowStateSnapshot();
  EXPECT_EQ(snapshot, u"1:-2::: 0, 2: 0: 0: 0, 1: 1: 2: 1, 3: 2:: 1: 0: 0: 0: 0: 0: 0: 0: 0: 0: 0: 1: 0:");
  EXPECT_EQ(std::ranges::count(snapshot, u':'), 26);
  form3.List1.clearSelection();
  room.snapshot.restore(snapshot);
  EXPECT_EQ(chosen(form2.List2), (Names{"A101 ", "A103 "}));
  EXPECT_EQ(form2.List4.TopIndex(), 1);
  EXPECT_EQ(form2.List4.selectedIndexes(), std::vector{1});
  EXPECT_EQ(chosen(form3.List1), Names{"Pop"});
  EXPECT_EQ(chosen(form3.List8), Names{"b"}) << "the titles are listed first";
  EXPECT_EQ(room.snapshot.windowStateSnapshot(), snapshot);
  EXPECT_EQ(table.puniliste, 0);
}

TEST_F(WindowSnapshotTest, TheFolderOfTheGenresComesBack) {
  fill(4);
  form2.genreByFolder.click();
  form2.Dir1.click(u"/new");
  click(form2.List2, {u"A102 "});
  const Text snapshot = room.snapshot.windowStateSnapshot();
  EXPECT_EQ(settings.get(u"form2dir"), u"/new");
  form2.Dir1.click(u"/elsewhere");
  EXPECT_EQ(form2.List2.ListCount(), 0);
  room.snapshot.restore(snapshot);
  EXPECT_EQ(form2.Dir1.path(), u"/new");
  EXPECT_EQ(chosen(form2.List2), Names{"A102 "});
}

TEST_F(WindowSnapshotTest, OneThatNoRecordCouldCarryLeavesTheLongestSelectionsOut) {
  fill(400);
  std::vector<int> many;
  for (int i = 0; i < 400; ++i) many.push_back(i);
  form1.List4.select(many, 0);
  {
    const ui::QuietLists quietly(table);
    click(form2.List2, {u"A105 "});
  }
  Text snapshot = room.snapshot.windowStateSnapshot();
  EXPECT_LT(snapshot.size(), 200U) << "what is not put back goes first";
  room.snapshot.restore(snapshot);
  EXPECT_EQ(chosen(form2.List2), Names{"A105 "});
  form1.List4.clearSelection();
  {
    const ui::QuietLists quietly(table);
    form2.List2.select(many, 0);
  }
  snapshot = room.snapshot.windowStateSnapshot();
  EXPECT_LE(snapshot.size(), 999U);
  room.snapshot.restore(snapshot);
  EXPECT_EQ(chosen(form2.List1), Names{"Rock"});
}

TEST_F(WindowSnapshotTest, AnyTextIsRead) {
  fill(2);
  for (const char16_t* text : {u"", u":::::", u"1:0: 99, 5, -7:x,,:999999999999: 3", u"7:-2: 0::::: 9, 9:::"})
    room.snapshot.restore(text);
  EXPECT_EQ(table.puniliste, 0);
}

}  // namespace
}  // namespace velmora
