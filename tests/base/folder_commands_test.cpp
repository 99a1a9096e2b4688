#include "base/folder_commands.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

#include "tests/base/base_world.h"

namespace velmora {
namespace {

using platform::Answer;
using platform::FileError;
using test::Names;
using test::Texts;
using test::TreeSnapshot;

struct FolderCommandsTest : test::BaseWorld {
  void renGenre(const Texts& genres, const Text& name) {
    click(form3.List1, genres);
    form3.Combo1.setText(name);
    confirm(u"Are you sure you want to RENAME selected folder(s) ?");
    room.folderCommands.renGenre();
  }
  void renAlbum(const Text& album, const Text& name) {
    click(form3.List3, {album});
    form3.Text3.setText(name);
    confirm(u"Are you sure you want to RENAME selected folder(s)?");
    room.folderCommands.renAlbum();
  }
  void confirmDel() { answer(u"Are you sure you want to DELETE selected folder(s)?", u"Delete"); }
  /// The next Ren meets a file that has the name already.
  void expectClash(const Text& from, Answer given) { clashes.emplace_back(from, given); }
  void confirm(const Text& question) {
    answer(question, u"Rename");
    for (const auto& [from, given] : std::exchange(clashes, {}))
      answer(u"Error while moving " + at(from) + u" #58 occurred: File already exists", u"Move File", given);
  }
  /// Folders whose name tells that a command was cut off.
  bool holdingLeft() {
    for (const Text& name : base::foldersIn(disk, at(u"")))
      if (name.ends_with(u"733727sdfs535")) return true;
    return false;
  }

  std::vector<std::pair<Text, Answer>> clashes;
};

TEST_F(FolderCommandsTest, RenMovesTheWholeTreeAndTakesTheOldOneAway) {
  show({u"rock/A/Al 2001/1.mp3", u"rock/A/Al 2001/deep/er/2.mp3", u"rock/A/own.mp3", u"rock/loose.mp3",
        u"rock/empty/very/", u"pop/P/p.mp3"});
  renGenre({u"rock"}, u" Hard Rock ");
  EXPECT_FALSE(there(u"rock"));
  EXPECT_EQ(content(u"Hard Rock/A/Al 2001/deep/er/2.mp3"), "rock/A/Al 2001/deep/er/2.mp3");
  EXPECT_TRUE(there(u"Hard Rock/loose.mp3"));
  EXPECT_TRUE(there(u"Hard Rock/empty/very"));
  EXPECT_EQ(rows(form3.List1), (Names{"Hard Rock", "pop"}));
  EXPECT_EQ(chosen(form3.List1), Names{"Hard Rock"});
  EXPECT_EQ(form3.Combo1.text(), u"Hard Rock");
  EXPECT_FALSE(disk.fileExists(folder.path(u"UndoData.txt")));
  expectAtRest();
}

TEST_F(FolderCommandsTest, RenAsksAndNeedsAName) {
  show({u"rock/A/1.mp3"});
  const TreeSnapshot before = snapshot();
  click(form3.List1, {u"rock"});
  for (const Text name : {u"  ", u"..", u"?:*"}) {
    form3.Combo1.setText(name);
    form3.Text2.setText(name);
    answer(u"There's no new name.", u"Rename");
    room.folderCommands.renGenre();
    answer(u"There's no new name.", u"Rename");
    room.folderCommands.renArtist();
    EXPECT_EQ(dialogs.lastIcon, platform::Icon::Exclamation);
  }
  form3.Text3.setText(u"..");
  answer(u"There's no new name.", u"Rename");
  room.folderCommands.renAlbum();
  form3.Combo1.setText(u"pop");
  answer(u"Are you sure you want to RENAME selected folder(s) ?", u"Rename", Answer::Cancel);
  room.folderCommands.renGenre();
  form3.List1.clearSelection();
  room.folderCommands.renGenre();
  room.folderCommands.delGenre();
  EXPECT_EQ(snapshot(), before);
}

TEST_F(FolderCommandsTest, RenOfCapitalsAloneGoesThroughAHoldingFolder) {
  show({u"rock/A/1.mp3", u"rock/B/Al/2.mp3"});
  renGenre({u"rock"}, u"Rock");
  EXPECT_EQ(rows(form3.List1), Names{"Rock"});
  EXPECT_EQ(content(u"Rock/B/Al/2.mp3"), "rock/B/Al/2.mp3");
  EXPECT_FALSE(there(u"rock"));
  EXPECT_FALSE(holdingLeft());
  EXPECT_TRUE(std::ranges::any_of(files.log, [](const std::string& line) {
    return line.starts_with("moveFolder") && line.ends_with("Rock733727sdfs535");
  }));
}

TEST_F(FolderCommandsTest, RenOfCapitalsAloneKeepsAnotherFolderOfThatSpelling) {
  show({u"rock/A/1.mp3", u"rock/A/2.mp3", u"Rock/A/1.mp3"});
  expectClash(u"Rock733727sdfs535/A/1.mp3", Answer::Ignore);
  renGenre({u"rock"}, u"Rock");
  EXPECT_EQ(content(u"Rock/A/1.mp3"), "Rock/A/1.mp3");
  EXPECT_EQ(content(u"rock/A/1.mp3"), "rock/A/1.mp3") << "what is ignored stays where it was";
  EXPECT_EQ(content(u"Rock/A/2.mp3"), "rock/A/2.mp3");
  EXPECT_FALSE(holdingLeft());
}

TEST_F(FolderCommandsTest, AHoldingFolderOfACrashIsNotMixedWithANewOne) {
  show({u"rock/A/1.mp3", u"Rock733727sdfs535/A/1.mp3"});
  renGenre({u"rock"}, u"Rock");
  EXPECT_EQ(content(u"Rock/A/1.mp3"), "rock/A/1.mp3");
  EXPECT_EQ(content(u"Rock733727sdfs535/A/1.mp3"), "Rock733727sdfs535/A/1.mp3");
  renGenre({u"Rock733727sdfs535"}, u"left over");
  EXPECT_TRUE(there(u"left over/A/1.mp3")) << "it is a folder as any other";
}

TEST_F(FolderCommandsTest, SeveralFoldersBecomeOneAndAClashAsks) {
  show({u"A/X/1.mp3", u"A/X/2.mp3", u"B/X/1.mp3", u"B/3.mp3", u"Pop/3.mp3", u"Pop/keep/"});
  expectClash(u"B/3.mp3", Answer::Ignore);
  expectClash(u"B/X/1.mp3", Answer::Ignore);
  renGenre({u"A", u"B"}, u"Pop");
  EXPECT_FALSE(there(u"A"));
  EXPECT_EQ(content(u"B/X/1.mp3"), "B/X/1.mp3");
  EXPECT_EQ(content(u"B/3.mp3"), "B/3.mp3");
  EXPECT_EQ(content(u"Pop/X/1.mp3"), "A/X/1.mp3");
  EXPECT_EQ(content(u"Pop/3.mp3"), "Pop/3.mp3");
  EXPECT_TRUE(there(u"Pop/keep"));
}

TEST_F(FolderCommandsTest, AbortLeavesTheRestAndTheRows) {
  show({u"A/X/1.mp3", u"A/Y/2.mp3", u"Pop/X/1.mp3", u"Pop/Y/2.mp3"});
  dialogs.otherwise = [](platform::Buttons) { return Answer::Abort; };
  const TreeSnapshot before = snapshot();
  renGenre({u"A"}, u"Pop");
  EXPECT_EQ(snapshot(), before);
  EXPECT_EQ(rows(form3.List1), (Names{"A", "Pop"}));
  EXPECT_EQ(chosen(form3.List1), Names{"A"});
  expectAtRest();
}

TEST_F(FolderCommandsTest, RetryTriesAgain) {
  show({u"A/X/1.mp3", u"Pop/X/1.mp3"});
  expectClash(u"A/X/1.mp3", Answer::Retry);
  expectClash(u"A/X/1.mp3", Answer::Retry);
  int tries = 0;
  files.onOperation = [&] {
    if (files.log.back().starts_with("move ") && ++tries == 3) folder.removeAll(u"base/Pop/X/1.mp3");
  };
  renGenre({u"A"}, u"Pop");
  EXPECT_EQ(content(u"Pop/X/1.mp3"), "A/X/1.mp3");
}

TEST_F(FolderCommandsTest, StopEndsARen) {
  show({u"A/X/1.mp3", u"A/X/2.mp3"});
  files.onOperation = [&] {
    if (files.log.back().starts_with("move ")) table.Stop = true;
  };
  renGenre({u"A"}, u"Pop");
  EXPECT_TRUE(there(u"A/X/1.mp3") != there(u"A/X/2.mp3"));
  expectAtRest();
}

TEST_F(FolderCommandsTest, AnArtistIsRenamedInEachSelectedGenre) {
  show({u"Pop/Abba/1.mp3", u"Rock/Abba/Al 2001/2.mp3", u"Zouk/Abba/3.mp3"});
  click(form3.List1, {u"Pop", u"Rock"});
  click(form3.List2, {u"Abba"});
  form3.Text2.setText(u"ABBA");
  confirm(u"Are you sure you want to RENAME selected folder(s)?");
  room.folderCommands.renArtist();
  EXPECT_EQ(content(u"Rock/ABBA/Al 2001/2.mp3"), "Rock/Abba/Al 2001/2.mp3");
  EXPECT_TRUE(there(u"Zouk/Abba/3.mp3"));
  EXPECT_EQ(chosen(form3.List1), (Names{"Pop", "Rock"}));
  EXPECT_EQ(chosen(form3.List2), Names{"ABBA"});
}

TEST_F(FolderCommandsTest, ARowThatLeadsToAnUnselectedGenreIsLeftAlone) {
  show({u"A0/Same/a.mp3", u"B1/Same/b.mp3", u"C2/Same/c.mp3"});
  click(form3.List1, {u"B1", u"C2"});
  form3.List2.select({0, 1}, 1);
  confirmDel();
  room.folderCommands.delArtist();
  EXPECT_EQ(trash.sent, Texts{at(u"C2/Same/c.mp3")});
  EXPECT_TRUE(there(u"A0/Same/a.mp3"));
}

TEST_F(FolderCommandsTest, FilesWithoutAFolderGetOne) {
  show({u"R/A/own.mp3", u"R/A/One 2001/1.mp3", u"R/A/empty/"});
  click(form3.List1, {u"R"});
  renAlbum(Text(base::withoutFolder), u"Singles 1990");
  EXPECT_EQ(content(u"R/A/Singles 1990/own.mp3"), "R/A/own.mp3");
  EXPECT_TRUE(there(u"R/A/One 2001/1.mp3"));
  EXPECT_TRUE(there(u"R/A/empty"));
  EXPECT_EQ(chosen(form3.List3), Names{"Singles 1990"});
  EXPECT_EQ(form3.Text3.text(), u"Singles 1990");
}

TEST_F(FolderCommandsTest, AnAlbumWithoutANameMovesUp) {
  show({u"R/A/One 2001/1.mp3", u"R/A/Two 2002/2.mp3"});
  click(form3.List1, {u"R"});
  renAlbum(u"One 2001", u"");
  EXPECT_TRUE(there(u"R/A/1.mp3"));
  EXPECT_FALSE(there(u"R/A/One 2001"));
  EXPECT_EQ(chosen(form3.List3), Names{core::toBytes(base::withoutFolder)});
  EXPECT_EQ(form3.Text3.text(), u"");
  EXPECT_EQ(rows(form3.List4), Names{"1.mp3"});
  renAlbum(Text(base::withoutFolder), u"");
  EXPECT_TRUE(there(u"R/A/1.mp3")) << "nothing to do";
}

TEST_F(FolderCommandsTest, ThePlayingFileGoesOnUnderItsNewName) {
  show({u"rock/A/1.mp3"});
  media.setFile(at(u"rock/A/1.mp3"));
  renGenre({u"rock"}, u"Pop");
  EXPECT_EQ(media.file(), at(u"Pop/A/1.mp3"));
  renGenre({u"Pop"}, u"POP");
  EXPECT_EQ(media.file(), at(u"POP/A/1.mp3"));
}

/// A failure of any operation, once or for good, whatever the user answers: no file is lost, none changed.
TEST_F(FolderCommandsTest, RenLosesNothingAtAnyFault) {
  struct Case {
    Text genre, name;
  } cases[] = {{u"rock", u"Rock"}, {u"rock", u"Pop"}, {u"rock", u"new"}};
  for (const Case& c : cases) {
    for (int nth = 1; nth < 60; ++nth) {
      const bool lasts = nth % 2 == 0;
      const Answer given = nth % 3 == 0 ? Answer::Abort : Answer::Ignore;
      files.failNoMore();
      folder.removeAll(u"base");
      show({u"rock/A/1.mp3", u"rock/A/2.mp3", u"rock/A/Al/3.mp3", u"Pop/A/1.mp3", u"Pop/A/Al/3.mp3"});
      const TreeSnapshot before = snapshot();
      click(form3.List1, {c.genre});
      form3.Combo1.setText(c.name);
      dialogs.otherwise = [given](platform::Buttons buttons) {
        return buttons == platform::Buttons::AbortRetryIgnore ? given : Answer::Ok;
      };
      if (lasts)
        files.failFrom(nth, FileError::deviceError);
      else
        files.failAt(nth, FileError::permissionDenied);
      room.folderCommands.renGenre();
      const TreeSnapshot after = snapshot();
      EXPECT_TRUE(after.holdsAllContentsOf(before)) << nth << '\n' << before << after;
      EXPECT_EQ(after.files(), before.files()) << nth;
      expectAtRest();
    }
  }
}

TEST_F(FolderCommandsTest, DelSendsAllFilesToTheTrashAndTakesEmptyFoldersAway) {
  show({u"rock/A/Al 2001/1.mp3", u"rock/A/own \"x\".mp3", u"rock/loose.mp3", u"pop/P/p.mp3"});
  click(form3.List1, {u"rock"});
  media.setFile(at(u"rock/loose.mp3"));
  answer(u"Are you sure you want to DELETE selected folder(s) ?", u"Delete");
  room.folderCommands.delGenre();
  EXPECT_EQ(trash.sent.size(), 3U) << "whatever their names";
  EXPECT_FALSE(there(u"rock"));
  EXPECT_EQ(rows(form3.List1), Names{"pop"});
  EXPECT_EQ(media.file(), u"");
  expectAtRest();
}

TEST_F(FolderCommandsTest, AFolderThatStillHoldsAFileStays) {
  show({u"rock/A/1.mp3", u"rock/B/2.mp3"});
  click(form3.List1, {u"rock"});
  click(form3.List2, {u"A", u"B"});
  trash.refused = at(u"rock/A/1.mp3");
  confirmDel();
  room.folderCommands.delArtist();
  EXPECT_EQ(rows(form3.List2), Names{"A"});
  EXPECT_TRUE(there(u"rock/A/1.mp3"));
}

TEST_F(FolderCommandsTest, DelOfAlbumsAsksAgainForFilesWithoutAFolderAndStopAmongThemKeepsTheAlbums) {
  for (const bool stops : {true, false}) {
    show({u"R/A/own.mp3", u"R/A/One 2001/1.mp3", u"R/A/Two 2002/2.mp3"});
    click(form3.List1, {u"R"});
    click(form3.List3, {Text(base::withoutFolder), u"One 2001"});
    confirmDel();
    answer(u"Are you sure you want to DELETE selected file(s)?", u"Delete");
    files.onOperation = [&] {
      if (stops && files.log.back().starts_with("move ")) table.Stop = true;
    };
    folder.removeAll(u"trash");
    trash.sent.clear();
    room.folderCommands.delAlbum();
    Texts sent = {at(u"R/A/own.mp3")};
    if (!stops) sent.push_back(at(u"R/A/One 2001/1.mp3"));
    EXPECT_EQ(trash.sent, sent);
    expectAtRest();
  }
  EXPECT_EQ(rows(form3.List3), Names{"Two 2002"});
  EXPECT_EQ(rows(form3.List8), Names{});
}

TEST_F(FolderCommandsTest, AFolderThatCannotBeReadEndsTheCommandWithAMessage) {
  show({u"rock/A/1.mp3"});
  click(form3.List1, {u"rock"});
  form3.Combo1.setText(u"pop");
  files.failFrom(1, FileError::deviceError);
  answer(u"Are you sure you want to RENAME selected folder(s) ?", u"Rename");
  answer(u"Unexpected error #57 occurred: Device I/O error", u"Rename");
  room.folderCommands.renGenre();
  answer(u"Are you sure you want to DELETE selected folder(s) ?", u"Delete");
  answer(u"Unexpected error #57 occurred: Device I/O error", u"Delete");
  room.folderCommands.delGenre();
  EXPECT_EQ(dialogs.lastIcon, platform::Icon::Critical);
  expectAtRest();
}

TEST_F(FolderCommandsTest, AFolderThatHasGoneKeepsNoOtherFromChanging) {
  show({u"R/A/1.mp3", u"R/B/2.mp3", u"R/C/3.mp3"});
  click(form3.List1, {u"R"});
  click(form3.List2, {u"A", u"B"});
  folder.removeAll(u"base/R/A");
  confirmDel();
  room.folderCommands.delArtist();
  EXPECT_EQ(rows(form3.List2), Names{"C"});
  folder.removeAll(u"base/R/C");
  click(form3.List2, {u"C"});
  form3.Text2.setText(u"D");
  confirm(u"Are you sure you want to RENAME selected folder(s)?");
  room.folderCommands.renArtist();
  EXPECT_FALSE(there(u"R/D"));
  EXPECT_EQ(rows(form3.List2), Names{});
}

TEST_F(FolderCommandsTest, ALinkGoesAlongAndWhatItLeadsToStays) {
  make({u"rock/A/1.mp3"});
  const Text outside = folder.write(u"outside/song.mp3", "x");
  ASSERT_EQ(::symlink("../../outside", folder.native(u"base/rock/out").c_str()), 0);
  lists.IzlistajBazu();
  renGenre({u"rock"}, u"Pop");
  EXPECT_FALSE(there(u"rock"));
  EXPECT_TRUE(there(u"Pop/out/song.mp3"));
  answer(u"Are you sure you want to DELETE selected folder(s) ?", u"Delete");
  room.folderCommands.delGenre();
  EXPECT_FALSE(there(u"Pop"));
  EXPECT_TRUE(disk.fileExists(outside));
}

}  // namespace
}  // namespace velmora
