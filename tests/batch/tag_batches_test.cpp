#include <sys/stat.h>

#include "core/text.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using test::Names;

using test::SongTags;

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
  clickForAll(tools().fnToId3);
  EXPECT_EQ(first(u"Arvola - One"), "Arvola|One|A1||0");
  EXPECT_EQ(second(u"Arvola - One"), "|y|A2||");
  EXPECT_EQ(first(u"Arvola - Two"), "Arvola|Two|||0");
  EXPECT_EQ(first(u"Arvola - Three"), "Arvola|Three|||0") << "a file without tags gets the marked one";
  EXPECT_EQ(second(u"Arvola - Three"), "none");
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "id3", "id3", "id3"}));
  mark(false, true);
  select({u"Arvola - One"});
  EXPECT_FALSE(form1().fieldChecks.album.enabled()) << "there is nothing to share with other files";
  click(tools().fnToId3);
  EXPECT_EQ(second(u"Arvola - One"), "Arvola|One|A2||") << "each tag keeps its own other values";
  for (int step = 0; step < 2; ++step) undo();
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

// An Add that reads tags leaves the last file it read as the current row, behind a blank panel.
TEST_F(TagBatches, ABlankPanelIsWrittenToNoFile) {
  program.settings.set(u"ex7", u" 1");
  program.settings.set(u"DirZaBazu", program.folder.path(u"base"));
  add({{u"a", {.title = u"x"}}, {u"b", {.title = u"y"}}});
  ASSERT_GT(program.table().currentRow, 0);
  mark(true, true);
  const auto expectNothingIsWritten = [this] {
    form1().tags.writeID3v1.onClick();
    for (ui::Button* button : {&form1().update, &tools().rename}) {
      EXPECT_FALSE(button->enabled());
      button->setEnabled(true);
      button->click();
      EXPECT_TRUE(kinds().empty());
      EXPECT_EQ(names(), (Names{"a", "b"}));
      EXPECT_EQ(first(u"a") + first(u"b"), "|x|||0|y|||0");
    }
  };
  expectNothingIsWritten();
  // The same where code selects a file without showing it.
  program.table().puniliste = 1;
  form1().List4.select({0}, 0);
  program.table().puniliste = 0;
  expectNothingIsWritten();
  select({u"b"});
  EXPECT_TRUE(form1().update.enabled());
  EXPECT_TRUE(tools().rename.enabled());
  form1().List4.select({}, 1);
  EXPECT_FALSE(form1().update.enabled()) << "the panel still shows the file, but it is no longer selected";
  EXPECT_FALSE(tools().rename.enabled());
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

TEST_F(TagBatches, WhatIsNotTickedStaysInEachTagWhicheverIsInView) {
  const SongTags one{.title = u"one"};
  const SongTags two{.title = u"two"};
  add({{u"a", one, two}, {u"b", one, {}}, {u"c", {}, two}, {u"d", one, two}});
  const auto share = [this](ui::OptionButton& view, const Text& album) {
    selectAll();
    view.setChosen(true);
    if (!form1().fieldChecks.album.checked()) form1().fieldChecks.album.click();
    form1().tags.album.setText(album);
    click(form1().update);
    return first(u"b") + ' ' + first(u"c") + ' ' + first(u"d");
  };
  mark(true, false);
  EXPECT_EQ(share(form1().tags.viewID3v1, u"A"), "|one|A||0 |two|A||0 |one|A||0");
  EXPECT_EQ(share(form1().tags.viewID3v2, u"B"), "|one|B||0 |two|B||0 |one|B||0");
}

TEST_F(TagBatches, IgnorePassesOverAFileAndAbortEndsTheBatch) {
  add({{u"a", {.title = u"x"}}, {u"b", {.title = u"x"}}, {u"c", {.title = u"x"}}});
  selectAll();
  mark(true, false);
  program.files.remove(program.table().path(1));
  program.dialogs.expectTitle(u"Update ID3 tag", platform::Answer::Ignore);
  click(tools().fnToId3);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "id3", "id3"}));
  undo();
  program.dialogs.expectTitle(u"Update ID3 tag", platform::Answer::Abort);
  click(tools().fnToId3);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1"}));
}

TEST_F(TagBatches, IgnoreForAllAsksOnceAndTellsAtTheEndWhatWasLeftOut) {
  add({{u"a"}, {u"b"}, {u"c"}});
  selectAll();
  mark(true, false);
  for (int row = 1; row <= 2; ++row) program.files.remove(program.table().path(row));
  program.dialogs.ignoreAll = true;
  program.dialogs.expectTitle(u"Update ID3 tag", platform::Answer::Ignore);
  program.dialogs.expect(u"2 files were not changed: File not found.", u"Update ID3 Tags From Filename",
                         platform::Answer::Ok);
  click(tools().fnToId3);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "id3"}));
}

TEST_F(TagBatches, AFailureOfTheSecondTagKeepsTheRecordOfTheFirst) {
  add({{u"a", {.title = u"x"}, {.title = u"x"}}});
  selectAll();
  mark(true, true);
  bool firstWritten = false;
  program.faults.onOperation = [&] {
    const std::string& operation = program.faults.log.back();
    if (!operation.starts_with("file write")) return;
    if (firstWritten) program.faults.failAt(1, platform::FileError::diskFull);
    firstWritten = operation.ends_with(".mp3");
  };
  program.dialogs.expectTitle(u"Update ID3 tag", platform::Answer::Abort);
  click(tools().fnToId3);
  program.faults.onOperation = nullptr;
  EXPECT_EQ(first(u"a"), "|a|||0");
  EXPECT_EQ(second(u"a"), "|x|||");
  undo();
  EXPECT_EQ(first(u"a"), "|x|||0");
}

}  // namespace
}  // namespace velmora
