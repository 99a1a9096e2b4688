#include "core/text.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using test::Names;

struct RenamerTest : test::RepairBench {
  /// Types a name for one file and presses Rename.
  void rename(const Text& name, const Text& to) {
    select({name});
    form1().Text1.setText(to);
    click(tools().rename);
  }
};

TEST_F(RenamerTest, CleansTheBoxAndTakesTheNameThatStandsThere) {
  add({{u"old"}});
  rename(u"old", u"old");
  EXPECT_EQ(kinds(), (Names{"st1", "bi1"})) << "the same name changes nothing";
  rename(u"old", u"  Arvola: Who?  ");
  EXPECT_EQ(names(), (Names{"Arvola  Who"})) << "each character that a name cannot hold is one blank";
  EXPECT_EQ(form1().Text1.text(), u"Arvola  Who");
  rename(u"Arvola  Who", u" ? ");
  EXPECT_EQ(names(), (Names{"Arvola  Who"})) << "nothing is left of the new name";
  EXPECT_EQ(form1().Text1.text(), u"Arvola  Who");
}

TEST_F(RenamerTest, AClashIsSettledByBlanksBehindTheName) {
  add({{u"taken"}, {u"one"}, {u"two"}});
  const Bytes taken = program.files.readAll(pathOf(u"taken"));
  rename(u"one", u"taken");
  rename(u"two", u"taken");
  EXPECT_EQ(names(), (Names{"taken", "taken ", "taken  "}));
  EXPECT_EQ(program.files.readAll(pathOf(u"taken")), taken);
  EXPECT_EQ(form1().Text1.text(), u"taken  ");
  rename(u"taken ", u"taken");
  EXPECT_EQ(names(), (Names{"taken", "taken ", "taken  "})) << "a file is no clash with itself";
}

TEST_F(RenamerTest, CapitalsAloneAreAChange) {
  add({{u"arvola - song"}, {u"upper"}, {u"UPPER"}});
  rename(u"arvola - song", u"Arvola - Song");
  EXPECT_EQ(names(), (Names{"Arvola - Song", "UPPER", "upper"}));
  rename(u"upper", u"UPPER");
  EXPECT_EQ(names(), (Names{"Arvola - Song", "UPPER", "UPPER "})) << "the other file keeps its name";
}

TEST_F(RenamerTest, TheDashInTheArtistsNameIsPassedOver) {
  add({{u"KO-RA - Thunder"}});
  program.table().track(1).crtapos = u" 7";
  program.table().setParts(1, u"KO-RA ", u" Thunder");
  rename(u"KO-RA - Thunder", u"Ko-Ra - Storm");
  EXPECT_EQ(program.table().track(1).crtapos.text(), u" 7");
  EXPECT_EQ(program.table().track(1).pevac.text(), u"Ko-Ra ");
  rename(u"Ko-Ra - Storm", u"Other - Storm");
  EXPECT_EQ(program.table().track(1).crtapos.text(), u" 7");
  rename(u"Other - Storm", u"no artist");
  EXPECT_EQ(program.table().track(1).pevac.text(), u"");
  EXPECT_EQ(program.table().autori.back(), u"");
}

TEST_F(RenamerTest, TagsThatEqualTheOldNameFollowIt) {
  add({{u"Arvola - Song",
        {.title = u"Song", .artist = u"Arvola", .album = u"A", .track = 3},
        {.title = u"Song", .artist = u"Arvola", .album = u"Another, longer than thirty characters"}},
       {u"Kora - Rain", {.title = u"Rain", .artist = u"Kora"}, {.title = u"Other", .artist = u"Kora"}},
       {u"Bare - Name"}});
  rename(u"Arvola - Song", u"Arvola - Harbour");
  EXPECT_EQ(first(u"Arvola - Harbour"), "Arvola|Harbour|A||3");
  EXPECT_EQ(second(u"Arvola - Harbour"), "Arvola|Harbour|Another, longer than thirty characters||");
  rename(u"Kora - Rain", u"Kora - Snow");
  EXPECT_EQ(first(u"Kora - Snow"), "Kora|Snow|||0");
  EXPECT_EQ(second(u"Kora - Snow"), "Kora|Other|||") << "a tag of another name stays as it is";
  rename(u"Bare - Name", u"Bare - New");
  EXPECT_EQ(first(u"Bare - New"), "none");
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren", "id3", "st1", "bi1", "ren", "id3", "st1", "bi1", "ren"}));
  EXPECT_FALSE(form1().tags.writeID3v1.checked()) << "the user's own marks are as they were";

  for (int step = 0; step < 3; ++step) undo();
  EXPECT_EQ(names(), (Names{"Arvola - Song", "Bare - Name", "Kora - Rain"}));
  EXPECT_EQ(first(u"Arvola - Song"), "Arvola|Song|A||3");
  EXPECT_EQ(second(u"Arvola - Song"), "Arvola|Song|Another, longer than thirty characters||");
  EXPECT_EQ(first(u"Kora - Rain"), "Kora|Rain|||0");
}

TEST_F(RenamerTest, WhatIsTypedForSeveralFilesGoesIntoNoTagByARename) {
  add({{u"a_x - Song", {.title = u"Song", .artist = u"a_x", .album = u"Own"}}, {u"b_y - Tune"}});
  selectAll();
  form1().fieldChecks.album.click();
  form1().tags.album.setText(u"For all");
  click(tools().fixSyntax);
  EXPECT_EQ(first(u"A X - Song"), "A X|Song|Own||0");
  EXPECT_EQ(form1().tags.album.text(), u"For all");
}

TEST_F(RenamerTest, AFileThatPlaysPlaysOnFromTheSameSecond) {
  add({{u"Arvola - Song"}});
  program.media.know(pathOf(u"Arvola - Song"), 180);
  program.media.know(pathOf(u"Arvola - Harbour"), 180);
  select({u"Arvola - Song"});
  form1().List4.doubleClick();
  program.media.advance(42);
  rename(u"Arvola - Song", u"Arvola - Harbour");
  EXPECT_EQ(program.media.file(), pathOf(u"Arvola - Harbour"));
  EXPECT_EQ(program.media.state(), platform::PlayState::Playing);
  EXPECT_EQ(program.media.position(), 42);
  undo();
  EXPECT_EQ(program.media.file(), pathOf(u"Arvola - Song"));
  EXPECT_EQ(program.media.position(), 42);
  const std::size_t opened = program.media.opened.size();
  rename(u"Arvola - Song", u"Arvola - Song");
  EXPECT_EQ(program.media.opened.size(), opened) << "the same name does not interrupt it";
}

TEST_F(RenamerTest, AFailureAsksAndRetryTriesAgain) {
  add({{u"Arvola - Song"}});
  const Text path = pathOf(u"Arvola - Song");
  const Bytes bytes = program.files.readAll(path);
  select({u"Arvola - Song"});
  form1().Text1.setText(u"Arvola - New");
  program.files.remove(path);
  const Text text =
      u"Error While Renaming File " + path + u" # 53 Occurred: File not found\r\n      Wath To Do ?";
  program.dialogs.expect(text, u"Rename", platform::Answer::Retry);
  program.dialogs.expect(text, u"Rename", platform::Answer::Ignore);
  click(tools().rename);
  EXPECT_EQ(program.dialogs.lastButtons, platform::Buttons::AbortRetryIgnore);
  EXPECT_EQ(program.dialogs.lastIcon, platform::Icon::Critical);
  EXPECT_EQ(program.table().path(1), path);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1"}));
  program.folder.write(u"music/in/Arvola - Song.mp3", bytes);
  rename(u"Arvola - Song", u"Arvola - New");
  EXPECT_EQ(names(), (Names{"Arvola - New"}));
}

TEST_F(RenamerTest, ARenameThatCannotBeJournalledIsNotDone) {
  add({{u"Arvola - Song"}});
  select({u"Arvola - Song"});
  form1().Text1.setText(u"Arvola - New");
  int writes = 0;
  program.faults.onOperation = [&] {
    // The third write is that of the rename, behind marker and selection.
    const std::string& line = program.faults.log.back();
    if (line.starts_with("file write") && line.ends_with("UndoData.txt") && ++writes == 3)
      program.faults.failAt(1, platform::FileError::diskFull);
  };
  program.dialogs.expect(
      u"The undo journal cannot be written: Disk full. What could not be undone is not done, "
      u"and the command ends here.",
      u"Undo", platform::Answer::Ok);
  click(tools().rename);
  program.faults.onOperation = nullptr;
  program.faults.failNoMore();
  EXPECT_EQ(names(), (Names{"Arvola - Song"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(kinds(), (Names{"st1", "bi1"}));
}

}  // namespace
}  // namespace velmora
