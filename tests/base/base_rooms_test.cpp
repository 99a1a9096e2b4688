// The small rooms of the Music Base: folders, new folders, positions, years, and the state of the columns.

#include <algorithm>
#include <unistd.h>

#include "base/base_state.h"
#include "base/folder_walk.h"
#include "tests/base/base_world.h"
#include "ui/quiet_lists.h"

namespace velmora {
namespace {

using test::Names;

struct LastPositionTest : test::BaseWorld {};

TEST_F(LastPositionTest, AKeyEndsInABackslash) {
  positions.SavePos(u"Rock", u"Abba");
  positions.SavePos(u"Rock and Roll", u"Bill\\Haley");
  positions.SavePos(u"Rock", u"Queen");
  positions.SavePos(u"", u"nothing");
  EXPECT_EQ(positions.LoadPos(u"Rock"), u"Queen");
  EXPECT_EQ(positions.LoadPos(u"Rock and Roll"), u"Bill\\Haley");
  EXPECT_EQ(positions.LoadPos(u"Rock and"), u"");
  EXPECT_EQ(positions.LoadPos(u""), u"");
  EXPECT_EQ(folder.read(u"LastPosition.dat"), "\"Rock\\Queen\"\r\n\"Rock and Roll\\Bill\\Haley\"\r\n");
}

TEST_F(LastPositionTest, WhatAnotherProgramWroteCountsAndDamageIsPassedOver) {
  positions.SavePos(u"a", u"1");
  folder.write(u"LastPosition.dat", "\"a\\2\"\r\n\r\n\"a\\33\"\r\n\"a\\torn");
  EXPECT_EQ(positions.LoadPos(u"a"), u"33") << "the last whole record";
  positions.SavePos(u"a", u"4");
  EXPECT_EQ(folder.read(u"LastPosition.dat"), "\"a\\4\"\r\n\"\"\r\n\"a\\4\"\r\n");
  folder.removeAll(u"LastPosition.dat");
  EXPECT_EQ(positions.LoadPos(u"a"), u"");
}

TEST_F(LastPositionTest, RecordsThatCannotBeReadAreNotWrittenOver) {
  positions.SavePos(u"a", u"1");
  base::LastPosition other(files, folder.path(u"LastPosition.dat"));
  files.failAt(2);
  other.SavePos(u"b", u"2");
  EXPECT_TRUE(files.hasFailed());
  EXPECT_EQ(folder.read(u"LastPosition.dat"), "\"a\\1\"\r\n");
  other.SavePos(u"b", u"2");
  EXPECT_EQ(positions.LoadPos(u"b"), u"2");
}

struct FoldersTest : test::BaseWorld {};

TEST_F(FoldersTest, PostojiDirTellsTheJournalForTheNewMusicWindowAlone) {
  EXPECT_FALSE(folders.PostojiDir(at(u"a/")));
  EXPECT_TRUE(folders.PostojiDir(at(u"a")));
  EXPECT_FALSE(journal.exists());
  table.aktivniprozor = core::WindowAtWork::NewMusic;
  EXPECT_TRUE(folders.PostojiDir(at(u"a/")));
  EXPECT_FALSE(folders.PostojiDir(at(u"b/")));
  folders.EnsureFolder(at(u"c/"));
  EXPECT_TRUE(there(u"b") && there(u"c"));
  const Text path = at(u"b");
  EXPECT_EQ(journal.readRecords(), std::vector<Text>{u"mkd" + journal::lengthPrefixed(path) + u" "});
}

TEST_F(FoldersTest, OnlyFoldersWithoutFilesAreRemoved) {
  make({u"a/b/c/", u"a/d/", u"e/f/g.mp3", u"e/h/", u"i/j.mp3", u"i/k/"});
  for (const TextView name : {u"a/", u"e", u"i", u"missing"}) folders.RemoveEmptyTree(at(name));
  EXPECT_FALSE(there(u"a"));
  EXPECT_TRUE(there(u"e/f/g.mp3"));
  EXPECT_FALSE(there(u"e/h"));
  EXPECT_TRUE(there(u"i/k")) << "beside a file nothing is looked at";
}

TEST_F(FoldersTest, LinksAreNeitherFollowedNorRemoved) {
  make({u"a/b/", u"kept/song.mp3", u"kept/empty/"});
  ASSERT_EQ(::symlink(folder.native(u"base/a").c_str(), folder.native(u"base/a/b/back").c_str()), 0);
  ASSERT_EQ(::symlink(folder.native(u"base/kept").c_str(), folder.native(u"base/link").c_str()), 0);
  ASSERT_EQ(::symlink("../kept/empty", folder.native(u"base/a/out").c_str()), 0);
  folders.RemoveEmptyTree(at(u"a"));
  folders.RemoveEmptyTree(at(u"link"));
  EXPECT_TRUE(there(u"a/b/back"));
  EXPECT_TRUE(there(u"link/song.mp3"));
  EXPECT_TRUE(there(u"kept/empty")) << "what lies outside of the tree stays";
  EXPECT_EQ(room.trash.CollectDelete(at(u"a")), (std::vector<Text>{at(u"a/out"), at(u"a/b/back")}));
}

struct NewFoldersTest : test::BaseWorld {
  void typed(const Text& name) { dialogs.expectInput(u"New Folder Name:", u"Create New Folder", name); }
};

TEST_F(NewFoldersTest, ANewFolderIsMadeAndSelected) {
  show({u"Pop/Zed/"});
  typed(u" Rock/Metal ");
  newFolders.newGenre();
  EXPECT_TRUE(there(u"Rock Metal"));
  EXPECT_EQ(chosen(form3.List1), Names{"Rock Metal"});
  click(form3.List1, {u"Pop"});
  typed(u"Abba");
  newFolders.newArtist();
  EXPECT_TRUE(there(u"Pop/Abba"));
  EXPECT_EQ(rows(form3.List2), (Names{"Abba", "Zed"}));
  EXPECT_EQ(chosen(form3.List2), Names{"Abba"});
  typed(u"Best Of");
  newFolders.newAlbum();
  EXPECT_TRUE(there(u"Pop/Abba/Best Of"));
  EXPECT_EQ(chosen(form3.List3), Names{"Best Of"});
  EXPECT_EQ(lists.albumPath(form3.List3.ListIndex()), at(u"Pop/Abba/Best Of/"));
  EXPECT_FALSE(journal.exists());
}

TEST_F(NewFoldersTest, WhatExistsOrHasNoNameChangesNothing) {
  show({u"Pop/A/"});
  const test::TreeSnapshot before = snapshot();
  newFolders.newArtist();
  newFolders.newAlbum();
  for (const std::optional<Text>& name :
       std::vector<std::optional<Text>>{std::nullopt, u"Pop", u"..", u" "}) {
    dialogs.expectInput(u"New Folder Name:", u"Create New Folder", name);
    newFolders.newGenre();
  }
  EXPECT_EQ(snapshot(), before);
  EXPECT_EQ(chosen(form3.List1), Names{});
}

TEST_F(NewFoldersTest, ABaseWithoutARootAsksForOneFirst) {
  settings.set(u"DirZaBazu", u"");
  lists.readRoot();
  form3.Combo1.setText(u"New");
  dialogs.expectFolder(u"Select main folder for Your Music Base", std::nullopt);
  for (const auto window : {core::WindowAtWork::MusicBase, core::WindowAtWork::NewMusic}) {
    table.aktivniprozor = window;
    newFolders.newGenre();
  }
  EXPECT_FALSE(disk.folderExists(u"New"));
  table.aktivniprozor = core::WindowAtWork::MusicBase;
  dialogs.expectFolder(u"Select main folder for Your Music Base", folder.path(u"base"));
  typed(u"Rock");
  newFolders.newGenre();
  EXPECT_TRUE(there(u"Rock"));
}

struct YearFilterTest : test::BaseWorld {
  YearFilterTest() {
    years.onApplied = [this] {
      ++applied;
      lists.IzlistajBazu();
    };
  }
  void choose(const std::vector<int>& chosenYears) {
    years.open();
    form3.years.List9.clearSelection();
    for (const int year : chosenYears) form3.years.List9.setSelected(year == 0 ? 0 : 2026 - year + 1, true);
    years.ok();
  }
  int applied = 0;
};

TEST_F(YearFilterTest, OnlyFoldersOfTheSelectedYearsAreShown) {
  EXPECT_EQ(form3.years.List9.ListCount(), 62);
  EXPECT_EQ(form3.years.List9.List(61), u"1966");
  EXPECT_TRUE(years.allYears());
  show({u"Pop/A/Greatest 2000/1.mp3", u"Pop/A/own.mp3", u"Pop/A/Later 2001/1.mp3", u"Pop/B/Old 1999/1.mp3",
        u"Rock/C/2000 Greatest/1.mp3", u"Soul/D/own 2000.mp3"});
  choose({2000});
  EXPECT_EQ(rows(form3.List1), Names{"Pop"});
  click(form3.List1, {u"Pop"});
  EXPECT_EQ(rows(form3.List2), Names{"A"});
  EXPECT_EQ(rows(form3.List3), Names{"Greatest 2000"});
  EXPECT_EQ(lists.filePath(0), at(u"Pop/A/Greatest 2000/1.mp3"));
  EXPECT_EQ(form3.selectYears.colour(), (ui::Colour{200, 150, 1}));
  EXPECT_EQ(settings.get(u"stanje9"), u" 27,");
  choose({2000});
  EXPECT_EQ(applied, 1) << "an unchanged choice lists nothing anew";
  choose({0, 2000});
  EXPECT_EQ(rows(form3.List1), (Names{"Pop", "Rock", "Soul"})) << "all years win";
  choose({});
  EXPECT_EQ(rows(form3.List1), Names{});
}

TEST_F(YearFilterTest, CancelShowsWhatWasApplied) {
  choose({0});
  EXPECT_EQ(applied, 0) << "as all years are at first";
  choose({});
  EXPECT_EQ(applied, 1);
  years.open();
  form3.years.List9.setSelected(0, true);
  years.cancel();
  EXPECT_EQ(years.StanjeLista9(), u"");
  choose({2001, 1999});
  years.open();
  form3.years.List9.clearSelection();
  form3.years.List9.setSelected(0, true);
  years.cancel();
  EXPECT_EQ(years.StanjeLista9(), u" 26, 28,");
  EXPECT_FALSE(form3.years.frame.visible());
  form3.years.List9.clearSelection();
  years.cancel();
  EXPECT_EQ(years.StanjeLista9(), u"") << "a frame that is not open cancels nothing";
  base::YearFilter next(settings, form3);
  next.load(2027);
  EXPECT_TRUE(next.passes(u"Album 2002")) << "rows are kept, not years";
  settings.set(u"stanje9", u"rubbish, 99,");
  next.load(2026);
  EXPECT_TRUE(next.allYears());
}

TEST_F(YearFilterTest, TheDumpOfAFolderGoesByItsYear) {
  make({u"R/own.mp3", u"R/One 2001/1.mp3", u"R/One 2001/CD/2.mp3", u"R/Two 2002/3.mp3"});
  const auto dump = [this] {
    std::vector<Text> paths;
    base::FolderFileDump(files, desktop, years, at(u"R/"), [&](const Text& path) { paths.push_back(path); });
    std::ranges::sort(paths);
    return paths;
  };
  EXPECT_EQ(dump(), (std::vector<Text>{at(u"R/One 2001/1.mp3"), at(u"R/One 2001/CD/2.mp3"),
                                       at(u"R/Two 2002/3.mp3"), at(u"R/own.mp3")}));
  form3.years.List9.clearSelection();
  form3.years.List9.setSelected(2026 - 2001 + 1, true);
  EXPECT_EQ(dump(), std::vector<Text>{at(u"R/One 2001/1.mp3")});
}

struct BaseStateTest : test::BaseWorld {
  void restore(const Text& state) {
    lists.IzlistajBazu();
    const ui::QuietLists quiet(table);
    base::restoreLists(form3, table, state);
  }
};

TEST_F(BaseStateTest, EverythingComesBackAsLeft) {
  show({u"P/A/1.mp3", u"R/A/One 2001/A - x.mp3", u"R/A/Two 2002/A - y.mp3", u"R/B/Three 2003/B - z.mp3"});
  EXPECT_EQ(base::StanjeLista(form3), u":::: 0: 0: 0: 0:");
  click(form3.List1, {u"P", u"R"});
  form3.List2.select({0, 2}, 2);
  click(form3.List3, {u"Two 2002", u"Three 2003"});
  form3.List8.setTopIndex(1);
  const Names titles = rows(form3.List8);
  const Text state = base::StanjeLista(form3);
  restore(state);
  EXPECT_EQ(base::StanjeLista(form3), state);
  EXPECT_EQ(rows(form3.List8), titles);
  EXPECT_EQ(chosen(form3.List3), (Names{"Two 2002", "Three 2003"}));
  EXPECT_EQ(table.puniliste, 0);
}

TEST_F(BaseStateTest, ARowThatIsGoneEndsTheRestoring) {
  show({u"P/A/1.mp3", u"R/A/One 2001/A - x.mp3"});
  restore(u" 1, 5: 0: 0:: 0: 0: 0: 0:");
  EXPECT_EQ(chosen(form3.List1), Names{"R"});
  EXPECT_EQ(chosen(form3.List2), Names{});
  restore(u"rubbish");
  EXPECT_EQ(chosen(form3.List1), Names{});
}

}  // namespace
}  // namespace velmora
