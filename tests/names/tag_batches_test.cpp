#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using Names = std::vector<std::string>;

struct TagBatches : test::RepairBench {
  void mark(bool first, bool second) {
    form1().tags.writeID3v1.setChecked(first);
    form1().tags.writeID3v2.setChecked(second);
  }
};

TEST_F(TagBatches, NamesGoIntoTheTagsThatAreMarked) {
  add({{u"Arvola - One", {.title = u"x", .album = u"A1"}, {.title = u"y", .album = u"A2"}},
       {u"Arvola - Two", {.title = u"x"}},
       {u"Arvola - Three"}});
  mark(true, false);
  selectAll();
  click(tools().fnToId3);
  EXPECT_EQ(first(u"Arvola - One"), "Arvola|One|A1||0");
  EXPECT_EQ(second(u"Arvola - One"), "|y|A2||");
  EXPECT_EQ(first(u"Arvola - Two"), "Arvola|Two|||0");
  EXPECT_EQ(first(u"Arvola - Three"), "Arvola|Three|||0") << "a file without tags gets the marked one";
  EXPECT_EQ(second(u"Arvola - Three"), "none");
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "id3", "id3", "id3"}));
}

TEST_F(TagBatches, EachTagKeepsItsOwnOtherValues) {
  add({{u"Arvola - One", {.title = u"x", .album = u"A1"}, {.title = u"y", .album = u"A2"}}});
  mark(true, true);
  selectAll();
  click(tools().fnToId3);
  EXPECT_EQ(first(u"Arvola - One"), "Arvola|One|A1||0");
  EXPECT_EQ(second(u"Arvola - One"), "Arvola|One|A2||0");
  click(tools().undoLastOperation);
  EXPECT_EQ(first(u"Arvola - One"), "|x|A1||0");
  EXPECT_EQ(second(u"Arvola - One"), "|y|A2||");
}

TEST_F(TagBatches, WithoutAMarkThereIsNothingToWrite) {
  add({{u"Arvola - One"}});
  selectAll();
  EXPECT_FALSE(tools().fnToId3.enabled());
  EXPECT_FALSE(form1().update.enabled());
  form1().tags.writeID3v2.click();
  EXPECT_TRUE(tools().fnToId3.enabled());
  EXPECT_TRUE(form1().update.enabled());
}

TEST_F(TagBatches, UpdateWritesTheBoxesOfOneFile) {
  add({{u"a", {.title = u"x", .album = u"Old"}}});
  select({u"a"});
  mark(true, false);
  EXPECT_FALSE(form1().fieldChecks.album.enabled()) << "there is nothing to share with other files";
  form1().tags.album.setText(u"New");
  click(form1().update);
  EXPECT_EQ(first(u"a"), "|x|New||0");
  click(tools().undoLastOperation);
  EXPECT_EQ(first(u"a"), "|x|Old||0");
}

TEST_F(TagBatches, TickedBoxesGoOntoAllSelectedFilesAndTheOthersLeaveEachItsOwn) {
  add({{u"a", {.title = u"one", .artist = u"A"}}, {u"b", {.title = u"two", .artist = u"B"}}, {u"c"}});
  select({u"a", u"b"});
  mark(true, false);
  EXPECT_FALSE(form1().tags.album.enabled());
  form1().fieldChecks.album.click();
  EXPECT_TRUE(form1().tags.album.enabled());
  EXPECT_EQ(form1().tags.album.focusRequests(), 1);
  form1().tags.album.setText(u"Shared");
  click(form1().update);
  EXPECT_EQ(first(u"a"), "A|one|Shared||0");
  EXPECT_EQ(first(u"b"), "B|two|Shared||0");
  EXPECT_EQ(first(u"c"), "none");

  form1().fieldChecks.album.click();
  EXPECT_FALSE(form1().tags.album.enabled());
  EXPECT_EQ(form1().tags.album.text(), u"");
  select({u"c"});
  EXPECT_TRUE(form1().tags.album.enabled()) << "one file can be edited as it is";
}

TEST_F(TagBatches, AFileThatCannotBeWrittenEndsItsRowAlone) {
  add({{u"a", {.title = u"x"}}, {u"b", {.title = u"y"}}});
  selectAll();
  mark(true, false);
  program.files.remove(program.table().path(1));
  program.dialogs.expectTitle(u"Update ID3 tag", platform::Answer::Abort);
  click(tools().fnToId3);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "id3"}));
}

}  // namespace
}  // namespace velmora
