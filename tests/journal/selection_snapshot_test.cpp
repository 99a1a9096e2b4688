#include "journal/selection_snapshot.h"

#include <gtest/gtest.h>

namespace velmora::journal {
namespace {

void fill(ui::ListBox& list, int rows) {
  for (int row = 0; row < rows; ++row) list.AddItem(u"row");
}

bool mustNotAsk() {
  ADD_FAILURE() << "an index was out of range";
  return false;
}

struct SelectionSnapshotTest : testing::Test {
  SelectionSnapshotTest() {
    fill(form1_.List1, 5);
    fill(form1_.List2, 5);
    fill(form1_.List4, 20);
  }
  ui::Form1 form1_;
};

TEST_F(SelectionSnapshotTest, TellsSixSectionsAndComesBackAsItWas) {
  EXPECT_EQ(selectionSnapshot(form1_), u"::: 0: 0: 0:");
  form1_.List1.select({0, 3}, 3);
  form1_.List2.select({4}, 4);
  form1_.List4.select({2, 15}, 15);
  form1_.List1.setTopIndex(1);
  form1_.List4.setTopIndex(12);
  const Text snapshot = selectionSnapshot(form1_);
  EXPECT_EQ(snapshot, u" 0, 3: 4,: 2, 15,: 1: 0: 12:");
  form1_.List1.select({1}, 1);
  form1_.List4.clearSelection();
  for (ui::ListBox* list : {&form1_.List1, &form1_.List4}) list->setTopIndex(0);
  restoreSelection(form1_, snapshot, mustNotAsk);
  EXPECT_EQ(selectionSnapshot(form1_), snapshot);
}

TEST_F(SelectionSnapshotTest, DisabledListsKeepTheirMarks) {
  form1_.List2.setEnabled(false);
  form1_.List4.setEnabled(false);
  restoreSelection(form1_, u": 1,: 1,: 2: 2: 2:", mustNotAsk);
  EXPECT_EQ(form1_.List2.SelCount(), 0);
  EXPECT_EQ(form1_.List4.SelCount(), 0);
  EXPECT_EQ(form1_.List2.TopIndex(), 2);
  EXPECT_EQ(form1_.List4.TopIndex(), 0);
}

TEST_F(SelectionSnapshotTest, AnIndexBeyondAListIsAskedAboutSaveInTheFileList) {
  int asked = 0;
  const auto goOn = [&] { return ++asked, true; };
  restoreSelection(form1_, u" 9: 9, 1,: 99, 3,: 0: 0: 0:", goOn);
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(form1_.List2.Selected(1));
  EXPECT_TRUE(form1_.List4.Selected(3));

  form1_.List4.clearSelection();
  restoreSelection(form1_, u" 9: 1,: 3,: 0: 0: 0:", [] { return false; });
  EXPECT_EQ(form1_.List4.SelCount(), 0) << "the restore ends where it was told to";
}

}  // namespace
}  // namespace velmora::journal
