#include "list/list_maker.h"

#include <filesystem>

#include "core/paths.h"
#include "core/text.h"
#include "names/grammar.h"
#include "tests/list/list_world.h"
#include "ui/display_limit.h"

namespace velmora::list {
namespace {

using core::Track;
using platform::Answer;
using test::Texts;

struct ListMakerTest : test::ListWorld {
  void expectSaved() {
    core::TrackTable loaded;
    data.readNames(loaded);
    data.readTags(loaded);
    EXPECT_EQ(loaded.brojfajlova(), table.brojfajlova());
    EXPECT_EQ(loaded.rows(), table.rows());
    for (int row = 1; row <= table.rows(); ++row) {
      EXPECT_EQ(loaded.path(row), table.path(row));
      EXPECT_EQ(loaded.track(row).crtapos, table.track(row).crtapos);
      EXPECT_EQ(loaded.track(row).procitan, table.track(row).procitan);
    }
    EXPECT_EQ(loaded.autori, table.autori);
    EXPECT_EQ(loaded.niznomusic, table.niznomusic);
    EXPECT_EQ(loaded.bazepesama, table.bazepesama);
  }
};

TEST_F(ListMakerTest, AFolderBecomesRowsWithPartsArtistsAndSizes) {
  const Text harbour = song(u"music/Arvola - Harbour.mp3");
  const Text track = song(u"music/cd/Track 01 - Song.MP3");
  const Text plain = song(u"music/cd/Plain.mp3");
  const Text cover = folder.write(u"music/cd/cover.jpg", "picture");
  add(u"music");
  EXPECT_EQ(working(), sorted({harbour, track, plain}));
  EXPECT_EQ(rowsOf(form1.List4).size(), 3u);
  EXPECT_EQ(form1.List4.List(0), table.path(1));
  EXPECT_EQ(partsOf(harbour), u"Arvola | Harbour");
  EXPECT_EQ(partsOf(track), u"|Track 01 - Song");
  EXPECT_EQ(table.autori.size(), 2u);
  EXPECT_EQ(table.niznomusic, Texts{cover});
  EXPECT_EQ(table.bazepesama, Texts{folder.path(u"music")});
  EXPECT_EQ(table.velicinasfiles, 3.0 * static_cast<double>(files.size(harbour)));
  EXPECT_EQ(form1.countLabel.text(), u" 3  new songs ");
  EXPECT_EQ(settings.get(u"ghb"), u" 3");
  EXPECT_EQ(settings.get(u"max1"), u" 3");
  EXPECT_EQ(settings.get(u"novidir"), folder.path(u"music"));
  EXPECT_EQ(settings.get(u"velicinasfiles"), u" " + core::ascii(std::to_string(3 * files.size(harbour))));
  EXPECT_TRUE(table.track(1).procitan.isNothing()) << "no tag is read without need";
  EXPECT_TRUE(form1.ostali.enabled());
  expectSaved();
  expectAtRest();
}

TEST_F(ListMakerTest, AFolderUnderAnAddedOneIsRefusedAndAParentAddsTheRest) {
  const Text a = song(u"music/one/a.mp3");
  const Text deep = song(u"music/one/deep/d.mp3");
  const Text more = song(u"music/one and more/c.mp3");
  const Text b = song(u"music/two/b.mp3");
  add(u"music/one/");
  for (const TextView known : {u"music/one", u"music/one/deep"}) {
    dialogs.expect(u"Files in that folder are already on list.", u"Add Files", Answer::Ok);
    add(known);
    EXPECT_EQ(table.brojbaza, 1);
  }
  EXPECT_EQ(working(), sorted({a, deep}));
  add(u"music/one and more");
  add(u"music");
  EXPECT_EQ(paths(1, 2), sorted({a, deep}));
  EXPECT_EQ(working(), sorted({a, deep, more, b}));
  EXPECT_EQ(table.bazepesama,
            (Texts{folder.path(u"music/one"), folder.path(u"music/one and more"), folder.path(u"music")}));
  expectSaved();
}

TEST_F(ListMakerTest, WhatAScanMissedIsListedByTheNextWithoutDoubles) {
  for (const TextView name : {u"music/a.mp3", u"music/b.mp3", u"music/sub/c.mp3", u"music/sub/d.txt"})
    song(name);
  std::filesystem::create_directory_symlink("loop", core::toBytes(folder.path(u"music/z")));
  desktop.then([] {});  // the pump at which the progress window opens
  desktop.then([this] { progress.stop(); });
  add(u"music");
  EXPECT_EQ(table.brojfajlova(), 1);
  table.Stop = false;

  // A folder that goes between the look at its parent and its own stands for one that cannot be read.
  files.onOperation = [this] {
    if (files.log.back().ends_with("music/sub")) files.failAt(1, platform::FileError::permissionDenied);
  };
  dialogs.expect(u"1 folder could not be read: Permission denied.\n\n" + folder.path(u"music/sub"),
                 u"Add Files", Answer::Ok);
  add(u"music");
  files.onOperation = nullptr;
  EXPECT_EQ(table.brojfajlova(), 2);

  windows.form5.extensions[6].check.setChecked(true);
  windows.form5.extensions[6].text.setText(u" *.TXT");
  add(u"music");
  EXPECT_EQ(table.brojfajlova(), 4);
  EXPECT_EQ(table.brojbaza, 1);
  windows.form5.extensions[6].check.setChecked(false);
  dialogs.expectTitle(u"Add Files", Answer::Ok);
  add(u"music");
  EXPECT_EQ(table.niznomusic, Texts{}) << "listed as music already";
  expectSaved();
}

TEST_F(ListMakerTest, ASongUnderTwoPathsIsOneRow) {
  const Text a = song(u"music/in/a.mp3");
  const Text b = song(u"music/real/b.mp3");
  for (const auto& [name, target] : {std::pair{u"music/in/0 first.mp3", a},
                                     {u"music/in/outside.mp3", b},
                                     {u"music/way", folder.path(u"music/in")}})
    std::filesystem::create_symlink(core::toBytes(target), core::toBytes(folder.path(name)));
  add(u"music/in");
  EXPECT_EQ(working(), sorted({a, folder.path(u"music/in/outside.mp3")}));
  for (const TextView again : {u"music/way", u"music/real"}) add(again);
  EXPECT_EQ(table.brojfajlova(), 2);
  EXPECT_EQ(table.brojbaza, 3);
}

TEST_F(ListMakerTest, ABaseUnderAnAddedFolderIsRefreshedAndNotBroughtBack) {
  useBase();
  settings.set(u"DirZaBazu", folder.path(u"music/base"));
  const Text a = song(u"music/new/a.mp3");
  folder.mkdir(u"music/base");
  add(u"music");
  const Text filed = song(u"music/base/Rock/Arvola/filed.mp3");
  const Text b = song(u"music/new/b.mp3");
  add(u"music");
  EXPECT_EQ(working(), sorted({a, b}));
  EXPECT_EQ(tail(), Texts{filed});
}

TEST_F(ListMakerTest, ARefreshListsTheBaseBehindTheWorkingListAndReadsTags) {
  const Text a = song(u"music/one/Ko-Ra - a.mp3", {.artist = u"Ko-Ra"});
  const Text b = song(u"music/two/Arvola - b.mp3");
  const Texts base = sorted(
      {song(u"base/Rock/KO-RA/KO-RA - Thunder.mp3"), folder.write(u"base/Rock/KO-RA/cover.jpg", "picture")});
  useBase();
  add(u"music/one");
  EXPECT_EQ(working(), Texts{a});
  EXPECT_EQ(tail(), base);
  EXPECT_EQ(sorted(data.readList(u"bazaniz.txt")), base);
  EXPECT_TRUE(table.track(1).procitan.isTrue());
  EXPECT_EQ(partsOf(a), u"Ko-Ra | a");
  EXPECT_EQ(partsOf(base[0]), u"KO-RA | Thunder");
  EXPECT_EQ(table.autori, Texts{u"Ko-Ra "}) << "the base adds no artist";
  EXPECT_EQ(rowsOf(form1.List4), Texts{a});
  EXPECT_EQ(windows.form1.countLabel.text(), u" 1  new songs ");
  expectSaved();

  windows.form5.refreshOldMusicList.setChecked(false);
  table.track(2).procitan = true;
  table.track(2).albumid3v1 = u"of the base";
  add(u"music/two");
  EXPECT_EQ(working(), sorted({a, b}));
  EXPECT_EQ(tail(), base) << "the list that was found before";
  EXPECT_TRUE(table.track(2).procitan.isNothing()) << "a new row knows nothing of the row that stood there";
  EXPECT_TRUE(table.track(2).albumid3v1.isNothing());
  EXPECT_TRUE(table.track(1).procitan.isTrue());
  expectSaved();
}

TEST_F(ListMakerTest, ABaseThatCannotBeReadKeepsItsList) {
  useBase();
  const Text tailSong = song(u"base/Rock/Arvola/x.mp3");
  song(u"music/one/a.mp3");
  song(u"music/two/b.mp3");
  add(u"music/one");
  std::filesystem::remove_all(core::toBytes(folder.path(u"base")));
  add(u"music/two");
  EXPECT_EQ(tail(), Texts{tailSong});
  folder.mkdir(u"base");
  song(u"music/three/c.mp3");
  add(u"music/three");
  EXPECT_EQ(tail(), Texts{}) << "an empty base has no rows";
  EXPECT_EQ(table.rows(), 3);
}

TEST_F(ListMakerTest, TheArtistsOfTheBaseAreListedAtTheFirstAddAlone) {
  useBase();
  folder.mkdir(u"base/Rock/Arvola");
  song(u"music/one/a.mp3");
  song(u"music/two/b.mp3");
  add(u"music/one");
  EXPECT_EQ(table.stariautori, (Texts{u"", u"Arvola"}));
  EXPECT_EQ(data.readList(u"stariautori.txt"), table.stariautori);
  folder.mkdir(u"base/Rock/Later");
  add(u"music/two");
  EXPECT_EQ(table.stariautori.size(), 2u);
}

TEST_F(ListMakerTest, WhatIsLeftOutIsToldOnceAtTheEnd) {
  song(u"music/a.mp3");
  song(u"music/b\"c\".mp3");
  folder.write(u"music/d\"", "");
  dialogs.expect(
      u"2 files or folders were left out, because their names hold a double quote or a line break.",
      u"Add Files", Answer::Ok);
  add(u"music");
  EXPECT_EQ(table.brojfajlova(), 1);
  dialogs.expectTitle(u"Add Files", Answer::Ok);
  add(u"odd \"folder\"");
  EXPECT_EQ(table.brojbaza, 1);
  EXPECT_EQ(settings.get(u"novidir"), folder.path(u"music"));
}

TEST_F(ListMakerTest, AFolderThatCannotBeReadCanBeAddedLater) {
  folder.write(u"other/read.txt", "");
  add(u"other");
  form1.ostali.click();
  dialogs.expect(u"This folder cannot be read.", u"Add Files", Answer::Ok);
  add(u"music");
  EXPECT_EQ(table.bazepesama, Texts{folder.path(u"other")});
  EXPECT_EQ(rowsOf(form1.List4), Texts{}) << "the view of the music lists no other file";
  expectAtRest();
  song(u"music/a.mp3");
  add(u"music");
  EXPECT_EQ(table.brojfajlova(), 1);
}

// What a kill leaves is read by the next start.
TEST_F(ListMakerTest, KilledAnywhereInAnAddTheNextStartMixesNoRows) {
  struct Killed {};
  useBase();
  song(u"base/Rock/Arvola/x.mp3", {.artist = u"x"});
  song(u"base/Rock/Arvola/y.mp3", {.artist = u"y"});
  song(u"music/one/a.mp3", {.artist = u"a"});
  song(u"music/two/b.mp3", {.artist = u"b"});
  int killedAt = 0;
  for (bool killed = true; killed;) {
    SCOPED_TRACE(++killedAt);
    add(u"music/one");
    song(u"base/Rock/Arvola/z" + core::plain(std::int64_t{killedAt}) + u".mp3");
    killed = false;
    files.onOperation = [&, left = killedAt]() mutable {
      if (--left <= 0) throw Killed();
    };
    try {
      add(u"music/two");
    } catch (const Killed&) {
      killed = true;
    }
    files.onOperation = nullptr;
    core::TrackTable loaded;
    data.readNames(loaded);
    data.readTags(loaded);
    for (int row = 1; row <= loaded.brojfajlova(); ++row)
      EXPECT_NE(loaded.path(row).find(u"music"), Text::npos) << "a song of the base";
    for (int row = 1; row <= loaded.rows(); ++row)
      if (loaded.track(row).procitan.isTrue()) {
        EXPECT_EQ(loaded.track(row).pevacID3v1.text(), core::paths::bareName(loaded.path(row)));
      }
    EXPECT_GE(loaded.brojfajlova(), 1);
    dialogs.expectTitle(u"Clear List", Answer::Ok);
    maker.newList();
  }
  EXPECT_GT(killedAt, 20);
}

TEST_F(ListMakerTest, StopLeavesWhatWasFoundWholeAndSaved) {
  useBase();
  const Text tailSong = song(u"base/Rock/Arvola/x.mp3");
  song(u"music/one/a.mp3");
  add(u"music/one");
  for (const TextView name : {u"b", u"c", u"d", u"e"}) song(u"music/two/Arvola - " + Text(name) + u".mp3");
  song(u"base/Rock/Arvola/y.mp3");
  desktop.then([] {});  // the pump at which the progress window opens
  desktop.then([this] { EXPECT_EQ(windows.dialog1.text.text(), u"Found 1 music and 0 other files."); });
  desktop.then([this] { progress.stop(); });
  add(u"music/two");
  EXPECT_EQ(table.brojfajlova(), 3);
  for (int row = 2; row <= 3; ++row) EXPECT_EQ(table.track(row).pevac.text(), u"Arvola ");
  EXPECT_EQ(table.autori.size(), 2u);
  EXPECT_EQ(tail(), Texts{tailSong}) << "a list of the base that was cut short is not kept";
  expectSaved();
  expectAtRest();
}

TEST_F(ListMakerTest, AFailureAtAnyFileOperationLeavesWholeRowsAndUsableWindows) {
  dialogs.otherwise = [](platform::Buttons) { return Answer::Ok; };
  useBase();
  song(u"base/Rock/KO-RA/Ko - Ra - x.mp3");
  song(u"music/a.mp3");
  song(u"music/sub/Ko-Ra - b.mp3");
  folder.write(u"music/sub/c.txt", "");
  form1.folderTree.setPath(folder.path(u"music"));
  for (const bool lasting : {false, true}) {
    bool failed = true;
    // The list is made by the first operations; behind them the saves follow, which are all alike.
    for (int nth = 1; failed; nth += nth < 20 ? 1 : 9) {
      SCOPED_TRACE(nth);
      lasting ? files.failFrom(nth) : files.failAt(nth);
      maker.add();
      failed = files.hasFailed();
      files.failNoMore();
      expectAtRest();
      ASSERT_LE(table.brojfajlova(), table.rows());
      for (int row = 1; row <= table.brojfajlova(); ++row) {
        const Text pesma = table.track(row).pesma.text();
        names::PevacIPesma(table, row);
        EXPECT_EQ(table.track(row).pesma.text(), pesma);
      }
      core::TrackTable loaded;
      data.readNames(loaded);
      data.readTags(loaded);
      if (!failed) {
        EXPECT_EQ(loaded.brojfajlova(), 2);
      }
      maker.newList();
    }
  }
}

TEST_F(ListMakerTest, BeyondTheDisplayLimitRowsAreKeptButNotShown) {
  static_assert(ui::shownRows(32737) == 32737 && ui::shownRows(32738) == 32736);
  for (int row = 1; row <= 32737; ++row) table.appendPath(u"/gone.mp3");
  table.setBrojfajlova(32737);
  song(u"music/a.mp3");
  dialogs.expect(
      u"There is to many files. Program can display only 32737 files on list. Process these files first, "
      u"then make list again for others. ",
      u"Make List", Answer::Ok);
  add(u"music");
  EXPECT_EQ(table.rows(), 32738);
  EXPECT_EQ(form1.List4.ListCount(), 32736);
}

TEST_F(ListMakerTest, AddRunsArtistListWhenThatIsTheReview) {
  int runs = 0;
  maker.onArtistList = [&] { ++runs; };
  for (const TextView name : {u"a", u"b", u"c"}) song(u"music/" + Text(name) + u" - x.mp3");
  table.vrsta = core::Review::ArtistList;
  add(u"music");
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(table.autori.size(), 1u);
}

TEST_F(ListMakerTest, NothingStartsWhileACommandRuns) {
  song(u"music/a.mp3");
  for (int pump = 0; pump < 2; ++pump)
    desktop.then([&] {
      maker.add();
      maker.addFolder();
      maker.newList();
      views.showOtherFiles();
    });
  add(u"music");
  EXPECT_EQ(table.brojbaza, 1);
}

TEST_F(ListMakerTest, NewListAsksAndThenKeepsTheMusicBaseAlone) {
  const Text question =
      u"This will clear current list. All undo information will be lost. Do you want to continue?";
  useBase();
  song(u"base/Rock/Arvola/x.mp3");
  song(u"music/Arvola - a.mp3", {.album = u"Harbours"});
  add(u"music");
  journal.appendUndoMarker("st1");
  settings.set(u"stanje0", u" 0,:::::");
  dialogs.expect(question, u"Clear List", Answer::Cancel);
  maker.newList();
  EXPECT_EQ(table.brojfajlova(), 1);

  std::vector<std::string> markers;
  int cleared = 0;
  journal.onMarker = [&](std::string_view kind) { markers.emplace_back(kind); };
  maker.onCleared = [&] { ++cleared; };
  form1.List4.setSelected(0, true);
  dialogs.expect(question, u"Clear List", Answer::Ok);
  maker.newList();
  EXPECT_EQ(markers, std::vector<std::string>{"new"});
  EXPECT_EQ(cleared, 1);
  EXPECT_EQ(table.brojfajlova() + table.rows() + table.brojbaza + form1.List4.ListCount(), 0);
  EXPECT_EQ(table.upperBound(&Track::nizdes), -1);
  EXPECT_EQ(table.upperBound(&Track::procitan), -1);
  EXPECT_GT(table.upperBound(&Track::albumid3v1), 0) << "its file goes, its storage stays";
  EXPECT_EQ(table.velicinasfiles, 0);
  EXPECT_EQ(form1.Text1.text() + form1.Text8.text() + form1.Text5.text() + form1.path.text(), u"");
  EXPECT_EQ(form1.countLabel.text(), u"  new songs ");
  EXPECT_FALSE(form1.ostali.enabled());
  EXPECT_EQ(settings.get(u"stanje0"), u"");
  EXPECT_FALSE(journal.exists());
  EXPECT_EQ(files.list(folder.path(u"Data")).entries.size(), 2u) << "bazaniz.txt and stariautori.txt";
  EXPECT_EQ(table.bazaniz.size(), 1u);

  add(u"music");
  EXPECT_EQ(table.brojfajlova(), 1) << "the same folder can be added again";
  expectSaved();
}

}  // namespace
}  // namespace velmora::list
