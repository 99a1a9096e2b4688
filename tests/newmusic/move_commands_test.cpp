#include <gmock/gmock.h>

#include "tests/newmusic/new_music_world.h"
#include "tests/support/other_volume.h"

namespace velmora {
namespace {

using platform::Answer;
using test::Names;
using test::TreeSnapshot;
using testing::HasSubstr;
using testing::IsEmpty;

struct MoveCommandsTest : test::NewMusicWorld {
  /// A small list of new music beside a base with one genre and artist.
  void fill() {
    show({u"Pop/Old/Hits  1990/Old - hit.mp3"});
    song(u"in/Alpha - one", {u"Rock", u"First", u"1998"});
    song(u"in/Alpha - two", {u"Rock", u"First", u"1998"});
    song(u"in/Alpha - three", {u"Rock"});
    song(u"in/nodash", {u"Rock", u"A/B: ?", {}});
    song(u"in/Beta - four", {u"Jazz", {}, u"2001"});
    song(u"in/Beta - five", {});
    openBoth();
    whole = TreeSnapshot::of(folder.path(u"new"));
  }
  void expectTidy() const {
    EXPECT_EQ(table.puniliste, 0);
    EXPECT_EQ(table.aktivniprozor, core::WindowAtWork::NewMusic);
    EXPECT_TRUE(form1.enabled() && form2.enabled() && form3.enabled());
    EXPECT_FALSE(windows.dialog1.visible());
    ASSERT_EQ(form1.List4.ListCount(), table.brojfajlova());
    for (int row = 1; row <= table.brojfajlova(); ++row)
      EXPECT_EQ(form1.List4.List(row - 1), table.path(row));
  }
  /// Everything is again as fill() made it.
  void expectUndone() {
    EXPECT_TRUE(form2.undoLastOperation.enabled());
    undo.undoLastOperation();
    expectTidy();
    EXPECT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
    EXPECT_EQ(snapshot(), base);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_FALSE(form2.undoLastOperation.enabled());
    EXPECT_EQ(paths(), before);
    EXPECT_EQ(table.velicinasfiles, bytes);
    EXPECT_EQ(form2.statusLabel.text(), u"");
  }
  void remember() {
    base = snapshot();
    before = paths();
    bytes = table.velicinasfiles;
  }
  std::vector<Text> paths() const {
    std::vector<Text> paths;
    for (int row = 1; row <= table.brojfajlova(); ++row) paths.push_back(table.path(row));
    return paths;
  }

  /// Files that a disk which stayed away left in the base, where their rows tell that they are.
  void bringBackByHand() {
    for (int row = 1; row <= table.brojfajlova(); ++row) {
      const Text path = table.path(row);
      if (path.starts_with(folder.path(u"new"))) continue;
      table.track(row).nizdes = folder.path(u"new/in/" + Text(core::paths::fileName(path)));
      disk.move(path, table.path(row));
      form1.List4.setList(row - 1, table.path(row));
    }
  }

  TreeSnapshot whole, base;
  std::vector<Text> before;
  double bytes = 0;
};

TEST_F(MoveCommandsTest, AnArtistGoesUnderTheGenreOfTheBase) {
  fill();
  remember();
  click(form3.List1, {u"Pop"});
  click(form2.List1, {u"Rock"});
  click(form3.List1, {u"Pop"});
  const Names artistsBefore = rows(form2.List2);
  moves.moveArtist();
  expectTidy();
  EXPECT_TRUE(there(u"Pop/Alpha/First  1998/Alpha - one.mp3")) << "two blanks before the year";
  EXPECT_TRUE(there(u"Pop/Alpha/Alpha - three.mp3")) << "without album: straight to the artist";
  EXPECT_EQ(content(u"Pop/Alpha/First  1998/Alpha - two.mp3"), "in/Alpha - two");
  EXPECT_EQ(table.brojfajlova(), 3);
  EXPECT_EQ(table.autori, (std::vector<Text>{u"", u"Beta "}));
  EXPECT_EQ(data.readList(u"autori.txt"), table.autori);
  EXPECT_EQ(data.readList(u"nizdes.txt").size(), 3U);
  EXPECT_EQ(kinds(), (Names{"st2", "biv", "mkd", "mkd", "izb", "mov", "izb", "mov", "izb", "mov"}));
  EXPECT_EQ(chosen(form3.List2), Names{"Alpha"}) << "the base shows where they went";
  EXPECT_EQ(rows(form3.List3), (Names{"-<< Without Folder >>-", "First  1998"}));
  EXPECT_EQ(chosen(form2.List1), Names{"Rock"});
  EXPECT_EQ(chosen(form2.List2), Names{""}) << "the next artist";
  EXPECT_EQ(form2.newLabel.text(), u"New: 3");

  expectUndone();
  EXPECT_EQ(rows(form2.List2), artistsBefore);
  EXPECT_EQ(chosen(form2.List2), Names{"Alpha "});
  EXPECT_EQ(chosen(form3.List1), Names{"Pop"});
}

TEST_F(MoveCommandsTest, GenresGoWithAllTheirArtists) {
  fill();
  remember();
  click(form2.List1, {u"-<< Without Genree >>-", u"Rock", u"Jazz"});
  dialogs.expect(u"Congratulations, you was successfully moved all new music files into Music Base folder. ",
                 u"Move", Answer::Ok);
  moves.moveGenre();
  expectTidy();
  EXPECT_EQ(dialogs.lastIcon, platform::Icon::Information);
  EXPECT_EQ(table.brojfajlova(), 0);
  EXPECT_TRUE(there(u"Rock/Alpha/First  1998/Alpha - one.mp3"));
  EXPECT_TRUE(there(u"Rock/ Without Autor/A B/nodash.mp3")) << "what no name can hold is a blank";
  EXPECT_TRUE(there(u"Jazz/Beta/2001/Beta - four.mp3"));
  EXPECT_TRUE(there(u" Without Genree/Beta/Beta - five.mp3"));
  EXPECT_EQ(closed, 1);
  EXPECT_THAT(chosen(form3.List1), testing::Contains("Jazz"));
  expectUndone();
  EXPECT_EQ(chosen(form2.List1), (Names{"-<< Without Genree >>-", "Rock", "Jazz"}));

  click(form2.List1, {u"-<< Every Autor >>-"});
  files.onOperation = [this] { table.Stop = table.Stop || files.log.back().starts_with("move "); };
  moves.moveGenre();
  files.onOperation = {};
  EXPECT_TRUE(there(u" Every Autors")) << "with the leading blank";
  EXPECT_EQ(table.brojfajlova(), 5) << "Stop ends the moves";
  expectTidy();
  expectUndone();
}

TEST_F(MoveCommandsTest, AlbumsAndTitlesGoUnderWhatIsSelectedInTheBase) {
  fill();
  remember();
  struct {
    TextView genre;  // none where the artist must still be selected, as it has more songs
    Text album;
    TextView moved;
    std::string shown;
    std::size_t titles;
  } cases[] = {{u"Rock", u"First  1998", u"First  1998/Alpha - one.mp3", "First  1998", 2},
               {u"", u"-<< Without Album And Year >>-", u"Alpha - three.mp3", "-<< Without Folder >>-", 1},
               {u"Jazz", u"-<< Every Songs >>-", u"Every Songs/Beta - four.mp3", "Every Songs", 1}};
  for (const auto& c : cases) {
    if (!c.genre.empty()) click(form2.List1, {Text(c.genre)});
    click(form3.List1, {u"Pop"});
    click(form3.List2, {u"Old"});
    click(form2.List3, {c.album});
    moves.moveAlbum();
    EXPECT_TRUE(there(u"Pop/Old/" + Text(c.moved)));
    EXPECT_EQ(chosen(form3.List3), Names{c.shown});
    EXPECT_EQ(rows(form3.List8).size(), c.titles) << "their titles are listed";
  }

  click(form2.List1, {u"Rock"});
  click(form3.List1, {u"Pop"});
  click(form3.List3, {u"Hits  1990"});
  click(form2.List3, {u"-<< Every Songs >>-"});
  form2.List4.select({0}, 0);
  moves.moveTitle();
  EXPECT_TRUE(there(u"Pop/Old/Hits  1990/nodash.mp3"));
  EXPECT_EQ(chosen(form3.List3), Names{"Hits  1990"});
  EXPECT_EQ(rows(form3.List8).size(), 2U);
  expectTidy();
  undo.undoLastOperation();
  EXPECT_FALSE(there(u"Pop/Old/Hits  1990/nodash.mp3"));
  undo.undoLastOperation();
  EXPECT_FALSE(there(u"Pop/Old/Every Songs"));
  undo.undoLastOperation();
  expectUndone();
}

/// Such a name may come from another program.
TEST_F(MoveCommandsTest, AFolderOfTheBaseWhoseNameEndsInABlankIsNoOther) {
  show({u"Pop/", u"Pop /Old /Hits /hit.mp3"});
  for (const TextView name : {u"in/Alpha - one", u"in/Alpha - two", u"in/Beta - three"}) song(Text(name));
  openBoth();
  const auto chooseInBase = [this] {
    click(form3.List1, {u"Pop "});
    click(form3.List2, {u"Old "});
    click(form3.List3, {u"Hits "});
  };
  click(form2.List1, {u"-<< Every Autor >>-"});
  click(form2.List2, {u"Alpha "});
  click(form2.List3, {u"-<< Every Songs >>-"});
  form2.List4.select({0}, 0);
  chooseInBase();
  moves.moveTitle();
  EXPECT_TRUE(there(u"Pop /Old /Hits /Alpha - one.mp3"));
  click(form2.List2, {u"Alpha "});
  click(form2.List3, {u"-<< Every Songs >>-"});
  chooseInBase();
  moves.moveAlbum();
  EXPECT_TRUE(there(u"Pop /Old /Every Songs/Alpha - two.mp3"));
  click(form2.List2, {u"Beta "});
  chooseInBase();
  dialogs.expectTitle(u"Move", Answer::Ok);
  moves.moveArtist();
  EXPECT_TRUE(there(u"Pop /Beta/Beta - three.mp3"));
}

TEST_F(MoveCommandsTest, FoldersOfNewMusicMoveToo) {
  show({u"Pop/"});
  song(u"Rock/cd 1/Alpha - one", {u"x", u"y", u"z"});
  song(u"Rock/cd: 2/Alpha - two");
  song(u"Jazz/cd 1/Beta - three");
  openBoth();
  whole = TreeSnapshot::of(folder.path(u"new"));
  remember();
  form2.genreByFolder.click();
  form2.albumByFolder.click();
  form2.Dir1.click(folder.path(u"new/Rock"));
  click(form3.List1, {u"Pop"});
  moves.moveArtist();
  EXPECT_TRUE(there(u"Pop/Alpha/cd: 2/Alpha - two.mp3"));
  EXPECT_TRUE(there(u"Pop/Alpha/cd 1/Alpha - one.mp3"));
  undo.undoLastOperation();
  EXPECT_EQ(form2.Dir1.path(), folder.path(u"new/Rock"));
  EXPECT_EQ(chosen(form2.List2), Names{"Alpha "});
  moves.moveGenre();
  EXPECT_TRUE(there(u"Rock/Alpha/cd 1/Alpha - one.mp3"));
  EXPECT_EQ(table.brojfajlova(), 1);
  expectTidy();
  expectUndone();
}

TEST_F(MoveCommandsTest, WhatIsNotSelectedInTheBaseIsAskedFor) {
  fill();
  moves.moveGenre();
  moves.moveArtist();
  moves.moveAlbum();
  moves.moveTitle();
  EXPECT_THAT(kinds(), IsEmpty()) << "nothing is selected, so nothing happens";
  click(form2.List1, {u"Rock"});
  click(form2.List3, {u"-<< Every Songs >>-"});
  form2.List4.select({0}, 0);
  form3.List1.clearSelection();
  dialogs.expect(u"Select only ONE item in genre list from Base.", u"Move", Answer::Ok);
  moves.moveArtist();
  dialogs.expect(u"Select only ONE item in genre and artist List from Base.", u"Move", Answer::Ok);
  moves.moveAlbum();
  dialogs.expect(u"Select One Item From Genre, Artist and Album List In Base.", u"Move", Answer::Ok);
  moves.moveTitle();
  EXPECT_EQ(dialogs.lastIcon, platform::Icon::Exclamation);
  dialogs.expect(u"Select only ONE item in genre list from Base.", u"Create Folder", Answer::Ok);
  room.names.nameArtist();
  dialogs.expect(u"Select only ONE item in genre and artist list from Base.", u"Create Folder", Answer::Ok);
  room.names.nameAlbum();
  settings.set(u"DirZaBazu", u"");
  lists.readRoot();
  for (int asked = 0; asked < 2; ++asked)
    dialogs.expectFolder(u"Select main folder for Your Music Base", std::nullopt);
  moves.moveGenre();
  room.names.nameGenre();
  EXPECT_THAT(kinds(), IsEmpty());
}

TEST_F(MoveCommandsTest, NamesBecomeFoldersThatUndoTakesAway) {
  fill();
  remember();
  form2.Combo1.setText(u"New: Genre");
  room.names.nameGenre();
  EXPECT_TRUE(there(u"New  Genre"));
  EXPECT_EQ(chosen(form3.List1), Names{"New  Genre"});
  form2.Text2.setText(u"Gamma");
  room.names.nameArtist();
  EXPECT_TRUE(there(u"New  Genre/Gamma"));
  form2.Text3.setText(u" Album ");
  form2.Text5.setText(u"1970 ");
  room.names.nameAlbum();
  EXPECT_TRUE(there(u"New  Genre/Gamma/Album  1970"));
  EXPECT_EQ(kinds(), (Names{"st2", "biv", "mkd", "st2", "biv", "mkd", "st2", "biv", "mkd"}));
  EXPECT_EQ(table.aktivniprozor, core::WindowAtWork::NewMusic);
  undo.undoLastOperation();
  EXPECT_FALSE(there(u"New  Genre/Gamma/Album  1970"));
  EXPECT_EQ(chosen(form3.List2), Names{"Gamma"});
  undo.undoLastOperation();
  expectUndone();
}

TEST_F(MoveCommandsTest, ATakenNameIsKeptApartAndNoTagLeadsOutOfTheBase) {
  show({u"Rock/Alpha/Alpha - one.mp3"});
  song(u"in/Alpha - one", {u"Rock"});
  song(u"in/Alpha - two", {u"..", u"..", {}});
  song(u"in/.. - three", {u"Rock", u".", {}});
  song(u"in/Alpha - four", {u"Li\nne", u"???", {}});
  openBoth();
  click(form2.List1, {u"Rock", u"..", u"Li\nne"});
  dialogs.expectTitle(u"Move", Answer::Ok);
  moves.moveGenre();
  EXPECT_EQ(content(u"Rock/Alpha/Alpha - one.mp3"), "Rock/Alpha/Alpha - one.mp3");
  EXPECT_EQ(content(u"Rock/Alpha/Alpha - one .mp3"), "in/Alpha - one");
  EXPECT_TRUE(there(u"Alpha/Alpha - two.mp3")) << "a level without a name falls together with the one above";
  EXPECT_TRUE(there(u"Rock/ Without Autor/.. - three.mp3"));
  EXPECT_TRUE(there(u"Li ne/Alpha/Alpha - four.mp3"));
}

TEST_F(MoveCommandsTest, AbortKeepsWhatWasMovedAndIgnorePassesOver) {
  fill();
  remember();
  folder.removeAll(u"new/in/Alpha - two.mp3");
  whole = TreeSnapshot::of(folder.path(u"new"));
  click(form2.List1, {u"Rock"});
  dialogs.expect(
      u"Error #53 while moving { " + folder.path(u"new/in/Alpha - two.mp3") + u" } occurred: File not found",
      u"Move File", Answer::Ignore);
  moves.moveGenre();
  EXPECT_EQ(paths(), (std::vector<Text>{before[1], before[4], before[5]}));
  undo.undoLastOperation();
  EXPECT_EQ(paths(), before);
  EXPECT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
  dialogs.expectTitle(u"Move File", Answer::Abort);
  click(form2.List1, {u"Rock"});
  moves.moveGenre();
  EXPECT_EQ(table.brojfajlova(), 4) << "three and one were moved before";
  expectTidy();
  undo.undoLastOperation();
  EXPECT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
}

/// A crash comes before the table is stored, so that the next start still has all rows.
TEST_F(MoveCommandsTest, UndoAfterACrashGivesNoRowTwice) {
  fill();
  remember();
  click(form2.List1, {u"Rock", u"Jazz"});
  moves.moveGenre();
  table.truncate(0);
  table.resizeColumns();
  form1.List4.Clear();
  for (const Text& path : before) addRow(path, {u"Rock"});
  undo.undoLastOperation();
  EXPECT_EQ(paths(), before);
  EXPECT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
}

TEST_F(MoveCommandsTest, ABaseThatIsNotThereIsNotBegunAnew) {
  fill();
  click(form2.List1, {u"Rock"});
  folder.removeAll(u"base");
  dialogs.expectTitle(u"Move File", Answer::Abort);
  moves.moveGenre();
  EXPECT_FALSE(folder.exists(u"base"));
  EXPECT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
  EXPECT_EQ(kinds(), (Names{"st2", "biv"}));
  expectTidy();
}

TEST_F(MoveCommandsTest, ASongWhoseOldNameIsTakenComesBackAsItself) {
  fill();
  remember();
  click(form2.List1, {u"Jazz"});
  moves.moveGenre();
  folder.write(u"new/in/Beta - four.mp3", "another");
  undo.undoLastOperation();
  EXPECT_EQ(folder.read(u"new/in/Beta - four.mp3"), "another");
  EXPECT_EQ(folder.read(u"new/in/Beta - four .mp3"), "in/Beta - four");
  before[4] = folder.path(u"new/in/Beta - four .mp3");
  EXPECT_EQ(paths(), before) << "the row tells of its own song, not of the other one";
}

/// Whatever operation fails first, no song is lost, no window stays closed, and undo brings all back.
TEST_F(MoveCommandsTest, AFaultAtAnyMomentLosesNothing) {
  fill();
  remember();
  dialogs.otherwise = [](platform::Buttons buttons) {
    return buttons == platform::Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::Ok;
  };
  for (const bool lasting : {false, true}) {
    bool failed = true;
    for (int nth = 1; failed; ++nth) {
      SCOPED_TRACE(nth);
      click(form2.List1, {u"Rock", u"Jazz"});
      lasting ? files.failFrom(nth) : files.failAt(nth);
      bool thrown = false;
      try {
        moves.moveGenre();
      } catch (const platform::FileError&) {
        thrown = true;
      }
      failed = files.hasFailed();
      files.failNoMore();
      EXPECT_TRUE(!thrown || kinds().size() <= 1) << "thrown only before anything was done";
      expectTidy();
      EXPECT_TRUE(TreeSnapshot::of(folder.path()).holdsAllContentsOf(whole));
      for (const Text& path : paths()) EXPECT_TRUE(disk.fileExists(path)) << core::toBytes(path);
      bringBackByHand();
      while (!kinds().empty()) undo.undoLastOperation();
      ASSERT_EQ(TreeSnapshot::of(folder.path(u"new")), whole);
      ASSERT_EQ(snapshot(), base);
      ASSERT_EQ(paths(), before);
    }
  }
}

}  // namespace
}  // namespace velmora
