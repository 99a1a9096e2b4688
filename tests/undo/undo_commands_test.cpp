#include "undo/undo_commands.h"

#include <utility>

#include "core/text.h"
#include "journal/undo_record.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using journal::lengthPrefixed;
using test::Names;

/// The undo of the whole program, fed with journals written by hand.
struct UndoTest : test::RepairBench {
  void write(BytesView journal) {
    program.folder.write(u"program/UndoData.txt", journal);
    program.restart();
  }
  static Bytes line(TextView kind, TextView first, TextView rest) {
    return '"' + core::toBytes(Text(kind) + lengthPrefixed(first) + u' ' + Text(rest)) + "\"\r\n";
  }
  Bytes renamed(TextView from, TextView to, int row = 1) const {
    const Text payload = lengthPrefixed(u" " + core::ascii(std::to_string(row))) +
                         lengthPrefixed(pathOf(from)) + lengthPrefixed(u" 0");
    return line(u"ren", pathOf(to), payload);
  }
  Bytes journal() const { return program.folder.read(u"program/UndoData.txt"); }

  const Bytes st1 = "\"st1\"\r\n";
};

TEST_F(UndoTest, ButtonsFollowTheTopOfTheJournal) {
  add({{u"a_1"}});
  EXPECT_FALSE(tools().undoLastOperation.enabled());
  EXPECT_FALSE(tools().undo.enabled());
  clickForAll(tools().fixSyntax);
  EXPECT_TRUE(tools().undoLastOperation.enabled());
  program.restart();
  EXPECT_TRUE(tools().undo.enabled());
  click(tools().undo);
  EXPECT_EQ(names(), (Names{"a_1"}));
  EXPECT_FALSE(tools().undo.enabled());
  for (const char* other : {"st2", "new", "dst"}) {
    write(Bytes(1, '"') + other + "\"\r\n");
    EXPECT_FALSE(tools().undoLastOperation.enabled()) << other;
    EXPECT_FALSE(tools().restoreAllChanges.enabled()) << other;
  }
  write("\"fst\"\r\n");
  EXPECT_TRUE(tools().restoreAllChanges.enabled());
  program.dialogs.expectTitle(u"Clear List", platform::Answer::Ok);
  click(form1().newList);
  EXPECT_FALSE(tools().restoreAllChanges.enabled());
}

TEST_F(UndoTest, EachUndoTakesBackOneOperationAndLeavesTheRest) {
  add({{u"c"}});
  write(st1 + renamed(u"a", u"b") + st1 + renamed(u"b", u"c"));
  undo();
  EXPECT_EQ(names(), (Names{"b"}));
  EXPECT_EQ(journal(), st1 + renamed(u"a", u"b"));
  undo();
  EXPECT_EQ(names(), (Names{"a"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(journal(), "");
}

TEST_F(UndoTest, TornAndDamagedLinesDoNothingAndThoseBelowStillUndo) {
  add({{u"b"}});
  const Bytes good = st1 + renamed(u"a", u"b");
  const Bytes other = renamed(u"x", u"y");
  for (const Bytes& damage :
       {other.substr(0, other.size() / 2), Bytes("\"ren9\"\r\n"), Bytes("\"id3002 1\"\r\n"),
        Bytes("\x00\xFF\r\n", 4), Bytes("\"izb002 1 111\"\r\n"), Bytes("\"del\"\r\n"),
        Bytes("\"zzz002 1 x\"\r\n"), Bytes("rubbish")}) {
    write(good + damage);
    undo();
    EXPECT_EQ(names(), (Names{"a"})) << damage;
    EXPECT_EQ(listed(), (Names{"a"})) << damage;
    program.files.move(pathOf(u"a"), pathOf(u"b"));
    program.table().track(1).nizdes = pathOf(u"b");
    form1().List4.setList(0, pathOf(u"b"));
  }
}

TEST_F(UndoTest, ADamagedLineInTheMiddleKeepsNoOtherFromItsUndo) {
  add({{u"c"}});
  const Bytes other = renamed(u"x", u"y");
  for (const Bytes& damage : {other.substr(0, other.size() / 2) + "\r\n", Bytes("\"ren9\"\r\n"),
                              Bytes("\x00\xFF\r\n", 4), Bytes("rubbish\r\n")}) {
    write(st1 + renamed(u"a", u"b") + damage + renamed(u"b", u"c"));
    undo();
    EXPECT_EQ(names(), (Names{"a"})) << damage;
    EXPECT_EQ(journal(), "") << damage;
    program.files.move(pathOf(u"a"), pathOf(u"c"));
  }
}

TEST_F(UndoTest, ATagOfAnotherProgramStaysWhenTheOneThatWasMadeGoes) {
  add({{u"a", {}, {.title = u"t"}}, {u"b"}});
  form1().tags.writeID3v1.setChecked(false);
  form1().tags.writeID3v2.setChecked(true);
  select({u"b"});
  click(tools().fnToId3);
  const Bytes bytes = program.files.readAll(pathOf(u"b"));
  program.files.writeAll(pathOf(u"b"), bytes + test::id3v1Tag({.title = u"of another"}));
  undo();
  EXPECT_EQ(second(u"b"), "none");
  EXPECT_EQ(first(u"b"), "|of another|||0");
}

TEST_F(UndoTest, AGenreThatCannotComeBackIsNotShownAsIfItHad) {
  const Bytes blues = test::mpegFrames() + test::id3v1Tag({.title = u"t", .artist = u"a"}, 0);
  program.song(u"in/a.mp3", blues);
  program.startWithMusic();
  select({u"a"});
  EXPECT_EQ(form1().tags.genre.text(), u"Blues");
  form1().tags.writeID3v1.setChecked(true);
  form1().tags.genre.setText(u"Opera");
  click(form1().update);
  undo();
  EXPECT_EQ(program.table().track(1).vrstaid3v1.text(), u"Opera") << "as the file has it";
}

/// The row of the record is wrong, the table is older than the journal, or an undo was cut short.
TEST_F(UndoTest, AfterAKillTheTableIsBroughtUpToTheFile) {
  add({{u"b"}, {u"other"}});
  for (const auto& [listedAs, fileIs, row] :
       {std::tuple{u"b", u"b", 7000}, {u"a", u"b", rowOf(u"b")}, {u"b", u"a", rowOf(u"b")}}) {
    const int at = rowOf(u"b");
    if (pathOf(u"b") != pathOf(fileIs)) program.files.move(pathOf(u"b"), pathOf(fileIs));
    program.table().track(at).nizdes = pathOf(listedAs);
    write(st1 + renamed(u"a", u"b", row));
    undo();
    EXPECT_EQ(names(), (Names{"a", "other"}));
    EXPECT_EQ(listed(), names());
    program.files.move(pathOf(u"a"), pathOf(u"b"));
    program.table().track(at).nizdes = pathOf(u"b");
    form1().List4.setList(at - 1, pathOf(u"b"));
  }
}

TEST_F(UndoTest, AFileRenamedByAnotherProgramAsksAndAbortDropsItsRecordAlone) {
  add({{u"b"}});
  const Text path = pathOf(u"b");
  program.files.move(path, pathOf(u"elsewhere"));
  write(st1 + renamed(u"x", u"y") + renamed(u"a", u"b"));
  program.dialogs.expect(
      u"Error while renaming file " + path + u" #53 occurred: File not found      Wath i do ?", u"Rename",
      platform::Answer::Abort);
  undo();
  EXPECT_EQ(journal(), st1 + renamed(u"x", u"y") + line(u"now", pathOf(u"a"), path))
      << "older records still find it";
  EXPECT_TRUE(tools().undoLastOperation.enabled());
  EXPECT_EQ(program.table().path(1), path);
}

TEST_F(UndoTest, AMovedFileGoesBackAndItsFolderIsMade) {
  add({{u"keep"}});
  const Text now = program.song(u"base/Rock/song.mp3");
  const Text before = program.folder.path(u"music/gone/song.mp3");
  write(st1 + line(u"mov", before, now));
  undo();
  EXPECT_TRUE(program.files.fileExists(before));
  EXPECT_FALSE(program.files.fileExists(now));
}

TEST_F(UndoTest, AMadeFolderGoesWhenItIsEmptyAndElseStays) {
  add({{u"keep"}});
  const Text empty = program.folder.mkdir(u"base/Empty");
  program.folder.write(u"base/Full/song.mp3", "music");
  write(st1 + line(u"mkd", empty, u"") + line(u"mkd", program.folder.path(u"base/Full"), u"") +
        line(u"mkd", u"/nowhere/at/all", u""));
  undo();
  EXPECT_FALSE(program.folder.exists(u"base/Empty"));
  EXPECT_EQ(program.folder.read(u"base/Full/song.mp3"), "music");
}

TEST_F(UndoTest, AnUnexpectedErrorAsksWhetherToGoOn) {
  add({{u"b"}});
  const Bytes whole = st1 + renamed(u"a", u"b") + line(u"bi1", u" 99:::::", u"");
  write(whole);
  program.dialogs.expectTitle(u"Undo", platform::Answer::Cancel);
  undo();
  EXPECT_TRUE(program.dialogs.shown.back().starts_with(u"Unexpected error #"));
  EXPECT_TRUE(program.dialogs.shown.back().ends_with(
      u"  Do you want to continue with undo operations (recomended)?"));
  EXPECT_EQ(program.dialogs.lastIcon, platform::Icon::Critical);
  EXPECT_EQ(journal(), whole) << "the journal is as it was";
  program.dialogs.expectTitle(u"Undo", platform::Answer::Ok);
  undo();
  EXPECT_EQ(names(), (Names{"a"}));
  EXPECT_EQ(journal(), "");
}

TEST_F(UndoTest, AnErrorNamesItsFileAndCanBeTriedAgain) {
  add({{u"keep"}});
  const Text wall = program.song(u"wall");
  const Text now = program.song(u"base/song.mp3");
  write(st1 + line(u"mov", program.folder.path(u"music/wall/song.mp3"), now));
  program.dialogs.expectTitle(u"Move File", platform::Answer::Retry);
  program.dialogs.expectTitle(u"Move File", platform::Answer::Ignore);
  undo();
  EXPECT_NE(program.dialogs.shown.back().find(now), Text::npos);
  EXPECT_TRUE(program.files.fileExists(wall));
  EXPECT_TRUE(program.files.fileExists(now));

  const Text made = program.folder.mkdir(u"base/made");
  write(st1 + line(u"mkd", made, u""));
  program.faults.onOperation = [&] {
    if (program.faults.log.back().starts_with("removeEmptyFolder"))
      program.faults.failAt(1, platform::FileError::deviceError);
  };
  program.dialogs.expect(u"Error #57 while undoing { " + made + u" } occurred: Device I/O error", u"Undo",
                         platform::Answer::Retry);
  const auto once = [&](platform::Buttons) {
    program.faults.onOperation = nullptr;
    return platform::Answer::Retry;
  };
  program.dialogs.otherwise = once;
  undo();
  EXPECT_FALSE(program.folder.exists(u"base/made"));
}

TEST_F(UndoTest, RecordsOfWindowsThatAreNotThereDoNothing) {
  add({{u"b"}});
  write(st1 + renamed(u"a", u"b") + line(u"biv", u"1:-2:::", u"") + line(u"fix", u" 7", u"") +
        line(u"dup", u" 1", u" 1") + line(u"prs", u"/a", u"/b") + "\"dst\"\r\n");
  program.form1().repair.undoLastOperation.setEnabled(true);
  undo();
  EXPECT_EQ(names(), (Names{"a"}));
}

TEST_F(UndoTest, RestoreAllChangesAsksAndGoesDownToItsMarker) {
  add({{u"c"}});
  write(st1 + "\"fst\"\r\n" + renamed(u"a", u"b") + line(u"fix", u" 1", u"") + renamed(u"b", u"c"));
  const Text question = u"Are you sure you want UNDO all fix from previous search?";
  program.dialogs.expect(question, u"Undo", platform::Answer::Cancel);
  click(tools().restoreAllChanges);
  EXPECT_EQ(names(), (Names{"c"}));
  program.dialogs.expect(question, u"Undo", platform::Answer::Ok);
  click(tools().restoreAllChanges);
  EXPECT_EQ(names(), (Names{"a"}));
  EXPECT_EQ(journal(), st1);
  EXPECT_FALSE(tools().restoreAllChanges.enabled());
  EXPECT_TRUE(tools().undoLastOperation.enabled());
}

TEST_F(UndoTest, ATagThatTheOperationMadeIsTakenOffOnceAndNeverCutsIntoTheMusic) {
  add({{u"a"}});
  const Bytes music = program.files.readAll(pathOf(u"a"));
  form1().tags.writeID3v1.setChecked(true);
  clickForAll(tools().fnToId3);
  const Bytes record = journal();
  undo();
  EXPECT_EQ(first(u"a"), "none");
  EXPECT_TRUE(program.files.readAll(pathOf(u"a")) == music);
  // Killed before the table was saved: the same undo once more, with columns that still speak of a tag.
  program.table().track(1).imaid3v1 = true;
  program.folder.write(u"program/UndoData.txt", record);
  tools().undoLastOperation.setEnabled(true);
  undo();
  EXPECT_TRUE(program.files.readAll(pathOf(u"a")) == music);
  ;
}

TEST_F(UndoTest, UndoNameTakesBackTheEditInTheBoxFirst) {
  add({{u"a"}});
  select({u"a"});
  form1().Text1.setText(u"typed");
  bool had = true;
  form1().Text1.undoEdit = [&] {
    if (std::exchange(had, false)) form1().Text1.setText(u"a");
  };
  click(tools().undoName);
  EXPECT_EQ(form1().Text1.text(), u"a");
  EXPECT_EQ(kinds(), Names{});
}

TEST_F(UndoTest, UndoNameGoesBackToTheNameBeforeTheLastRenameAndCanBeUndone) {
  add({{u"a_1"}, {u"b_2"}, {u"plain"}});
  clickForAll(tools().fixSyntax);
  clickForAll(tools().undoName);
  EXPECT_EQ(names(), (Names{"a_1", "b_2", "plain"}));
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren", "ren", "ren", "st1", "bi1", "ren", "ren", "ren"}));
  undo();
  EXPECT_EQ(names(), (Names{"A 1", "B 2", "Plain"}));
  undo();
  EXPECT_EQ(names(), (Names{"a_1", "b_2", "plain"}));
  clickForAll(tools().undoName);
  EXPECT_EQ(kinds(), Names{}) << "nothing was renamed, so there is nothing to take back";
}

TEST_F(UndoTest, WithoutSettingsTheJournalStaysAsItIs) {
  add({{u"b"}});
  write(st1 + renamed(u"a", u"b"));
  program.files.remove(program.folder.path(u"program/Settings.ini"));
  undo();
  EXPECT_EQ(names(), (Names{"b"}));
  EXPECT_EQ(journal(), st1 + renamed(u"a", u"b"));
}

}  // namespace
}  // namespace velmora
