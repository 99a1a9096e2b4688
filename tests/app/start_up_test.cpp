#include <gtest/gtest.h>

#include "core/data_folder.h"
#include "tests/support/headless_velmora.h"
#include "tests/support/tree_snapshot.h"

namespace velmora::app {
namespace {

using platform::Answer;

struct StartUpTest : testing::Test {
  test::HeadlessVelmora program;
  core::DataFolder data{program.files, program.settings, program.programFolder()};

  /// Stores a working list of these names, with `tail` rows of the Music Base behind it.
  void storeList(const std::vector<Text>& names, int tail = 0) {
    core::TrackTable stored;
    for (const Text& name : names) stored.appendPath(u"/music/" + name);
    for (int i = 0; i < tail; ++i) stored.appendPath(u"/base/Rock/ABBA/Gold - 1992/x.mp3");
    stored.setBrojfajlova(static_cast<int>(names.size()));
    stored.resizeColumns();
    data.savenizove(stored);
  }
};

TEST_F(StartUpTest, FirstRunComesUpInTheMusicBaseWindow) {
  program.start();
  EXPECT_EQ(program.shown(), "base");
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::MusicBase);
  EXPECT_EQ(program.table().brojfajlova(), 0);
  EXPECT_EQ(program.form3().rootLabel.text(), u"");
  EXPECT_EQ(program.form1().countLabel.text(), u" 0  new songs ");
  EXPECT_EQ(program.table().winampfile, u"c:\\Program Files\\Winamp\\winamp.exe");
  EXPECT_FALSE(program.form1().assort.enabled());
  EXPECT_FALSE(program.form1().ostali.enabled());
  const auto& genres = program.form1().tags.genre.rows();
  EXPECT_EQ(genres[0], (ui::ComboRow{u"", 255}));
  EXPECT_EQ(genres[1], (ui::ComboRow{u"Blues", 0}));
  EXPECT_EQ(genres.back(), (ui::ComboRow{u"Synth Pop", 147}));
}

TEST_F(StartUpTest, TipOfTheDayHoldsTheWindowsUntilItIsClosed) {
  for (const auto& [front, stored] : {std::pair{u"3", u""}, {u"1", u"True"}}) {
    test::HeadlessVelmora shown;
    shown.folder.write(u"shipped/TIPOFDAY.TXT", "\"Press F12\"\r\n");
    shown.settings.set(u"showtipsasstartup", stored);
    shown.settings.set(u"aktivniprozor", front);
    shown.desktop.then([] {});  // the pump that lets the main window paint
    shown.desktop.then([&] {
      EXPECT_EQ(shown.windows().frmTip.tip.text(), u"Press F12");
      EXPECT_FALSE(shown.form1().enabled());
      EXPECT_FALSE(shown.form3().enabled());
      shown.windows().frmTip.ok.click();
    });
    shown.start();
    EXPECT_TRUE(shown.form1().enabled());
    EXPECT_TRUE(shown.form3().enabled());
  }
}

TEST_F(StartUpTest, TipAndMenuKeepTheirMarksInStep) {
  program.settings.set(u"showtipsasstartup", u"");
  program.desktop.then([] {});
  program.desktop.then([&] {
    program.windows().frmTip.showAtStartup.click();
    program.windows().frmTip.ok.click();
  });
  program.start();
  EXPECT_FALSE(program.form3().showTips.checked());
  EXPECT_EQ(program.settings.get(u"showtipsasstartup"), u"False");
  program.form3().showTips.click();
  EXPECT_EQ(program.settings.get(u"showtipsasstartup"), u"True");
}

TEST_F(StartUpTest, SecondInstanceGivesWayAndStoresNothingUnlessToldToGoOn) {
  storeList({u"a - b.mp3"});
  const test::TreeSnapshot before = test::TreeSnapshot::of(program.programFolder());
  program.desktop.anotherInstance = true;
  for (const Answer answer : {Answer::Ok, Answer::Cancel}) {
    program.dialogs.expect(
        u"Another instance of this program is already open. Click OK to shutdown this execution.", u"Velmora",
        answer);
    program.forget();
    program.start();
    EXPECT_EQ(program.ends, 1);
    EXPECT_EQ(program.app().ended(), answer == Answer::Ok);
    EXPECT_EQ(program.form3().visible(), answer == Answer::Cancel);
    EXPECT_EQ(test::TreeSnapshot::of(program.programFolder()), before);
    EXPECT_EQ(program.dialogs.lastButtons, platform::Buttons::OkCancel);
  }
}

TEST_F(StartUpTest, ListHoldsTheWorkingRowsAndNotTheTail) {
  storeList({u"ABBA - Waterloo.mp3", u"Nobody.mp3"}, 3);
  program.settings.set(u"velicinasfiles", u" 1536000");
  program.settings.set(u"novidir", program.folder.path(u"music/gone/deeper"));
  program.start();
  ASSERT_EQ(program.form1().List4.ListCount(), 2);
  EXPECT_EQ(program.form1().List4.List(1), u"/music/Nobody.mp3");
  EXPECT_EQ(program.table().rows(), 5);
  EXPECT_EQ(program.form1().countLabel.text(), u" 2  new songs ");
  EXPECT_EQ(program.form1().sizeLabel.text(), u" 1.46 MB");
  EXPECT_TRUE(program.form1().ostali.enabled());
  EXPECT_EQ(program.form1().folderTree.path(), program.musicFolder()) << "the nearest folder that is there";
}

TEST_F(StartUpTest, BeyondTheDisplayLimitRowsAreLoadedButNotShown) {
  storeList(std::vector<Text>(32738, u"a.mp3"));
  program.start();
  EXPECT_EQ(program.table().brojfajlova(), 32738);
  EXPECT_EQ(program.form1().List4.ListCount(), 32736);
}

TEST_F(StartUpTest, DashesAndArtistsAreFoundAnewWhereTheirFilesSpeakOfOtherRows) {
  storeList({u"ABBA - Waterloo.mp3", u"Kora - Rain.mp3"});
  program.folder.write(u"program/Data/crtapos.txt", "\" 6\"\r\n");
  program.folder.write(u"program/Data/autori.txt", "\"nobody\"\r\n");
  program.start();
  EXPECT_EQ(program.table().track(2).pevac.text(), u"Kora ");
  EXPECT_EQ(program.table().autori, (std::vector<Text>{u"ABBA ", u"Kora "}));
}

TEST_F(StartUpTest, ReviewIsResumedInTheProcessingWindowAlone) {
  for (const auto& [front, stored, resumed] : {std::tuple{u"1", u" 1", "fix"},
                                               {u"1", u" 11", "fix"},
                                               {u"1", u" 98", "fix"},
                                               {u"1", u" 2", "dup"},
                                               {u"1", u" 3", "artists"},
                                               {u"1", u" 0", ""},
                                               {u"1", u" 77", ""},
                                               {u"3", u" 2", ""}}) {
    test::HeadlessVelmora resuming;
    resuming.settings.set(u"aktivniprozor", front);
    resuming.settings.set(u"vrsta", stored);
    std::string raised;
    resuming.app().events().onResumeCheckFix = [&] { raised += "fix"; };
    resuming.app().events().onResumeDuplicates = [&] { raised += "dup"; };
    resuming.app().events().onResumeArtistList = [&] { raised += "artists"; };
    resuming.start();
    EXPECT_EQ(raised, resumed);
  }
}

TEST_F(StartUpTest, SelectionComesBackExceptInTheArtistReview) {
  storeList({u"a.mp3", u"b.mp3", u"c.mp3"});
  program.settings.set(u"aktivniprozor", u" 1");
  program.settings.set(u"stanje0", u":: 0, 2,: 0,: 0,: 1,:");
  program.start();
  EXPECT_EQ(program.form1().List4.selectedIndexes(), (std::vector<int>{0, 2}));
  EXPECT_EQ(program.form1().List4.TopIndex(), 1);
  EXPECT_EQ(program.table().puniliste, 0);
  EXPECT_EQ(program.table().currentRow, 3) << "the panel shows it again";

  program.settings.set(u"vrsta", u" 3");
  test::HeadlessVelmora artists;
  artists.settings.set(u"aktivniprozor", u" 1");
  artists.settings.set(u"vrsta", u" 3");
  artists.settings.set(u"stanje0", u":: 0,::::");
  artists.start();
  EXPECT_EQ(artists.form1().List4.SelCount(), 0);
}

TEST_F(StartUpTest, NothingStoredStopsTheLoad) {
  for (const char* name : {"nizdes", "crtapos", "niznomusic", "autori", "procitan", "vrstaid3v2"})
    program.folder.write(u"program/Data/" + Text(name, name + std::string_view(name).size()) + u".txt",
                         Bytes("\"torn \0 \xff\xfe\r#TRUE#,,,\"", 22));
  for (const TextView key : {u"ghb", u"velicinasfiles", u"aktivniprozor", u"sourceprozor", u"slider", u"ton",
                             u"f3h", u"f3w", u"f3x", u"maxb", u"l1w", u"f1x", u"f1y", u"vrsta", u"ex1a"})
    program.settings.set(key, u" 99999999999999999999999999999");
  program.settings.set(u"aktivniprozor", u"1");
  program.settings.set(u"stanje0", u"x:-1,:9999999999,-4,:-7,:,,:99,");
  program.start();
  EXPECT_TRUE(program.form1().visible());
  EXPECT_EQ(program.table().ton, 0);
  EXPECT_LE(program.form1().preview.share(), 1.0);
  EXPECT_EQ(program.table().vrsta, core::Review::None);
}

}  // namespace
}  // namespace velmora::app
