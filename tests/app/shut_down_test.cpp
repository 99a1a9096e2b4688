#include <gtest/gtest.h>

#include "core/data_folder.h"
#include "core/number_text.h"
#include "core/text.h"
#include "tests/support/headless_velmora.h"

namespace velmora::app {
namespace {

struct ShutDownTest : testing::Test {
  test::HeadlessVelmora program;

  void addSongs() {
    program.song(u"in/ABBA - Waterloo.mp3");
    program.song(u"in/Nobody.mp3");
    program.song(u"in/cover.jpg");
    program.startWithMusic();
    ASSERT_EQ(program.table().brojfajlova(), 2);
  }
};

TEST_F(ShutDownTest, ClosingTheMusicBaseWindowStoresItsPlaceAndEndsTheProgram) {
  program.start();
  program.form3().setPlacement({150, 300, 9000, 6000});
  program.form3().splitters.setPlace(3, {4500, 2000});
  program.form1().List6.AddItem(u"/a", 4);
  program.form1().List6.AddItem(u"/b", 17);
  program.form3().closeRequest();
  EXPECT_TRUE(program.app().ended());
  EXPECT_EQ(program.ends, 1);
  EXPECT_FALSE(program.form3().visible());
  for (const auto& [key, value] : {std::pair{u"f3x", u" 150"},
                                   {u"f3y", u" 300"},
                                   {u"f3w", u" 9000"},
                                   {u"f3h", u" 6000"},
                                   {u"maxb", u"0"},
                                   {u"l8l", u" 4500"},
                                   {u"l8w", u" 2000"},
                                   {u"l1w", u""},
                                   {u"sourceprozor", u" 0"},
                                   {u"aktivniprozor", u" 3"},
                                   {u"vrsta", u" 0"},
                                   {u"ghb", u" 0"},
                                   {u"dupli", u"True"},
                                   {u"ton", u" 0"},
                                   {u"slider", u" 1"},
                                   {u"stanje0", u"::: 0,: 0,: 0,:"},
                                   {u"vratidup1", u" 4"},
                                   {u"vratidup2", u" 17"},
                                   {u"velicinasfiles", u" 0"}})
    EXPECT_EQ(program.settings.get(key), value) << core::toBytes(key);
}

TEST_F(ShutDownTest, MaximisedWindowKeepsItsLastNormalPlace) {
  program.settings.set(u"f3x", u" 10");
  program.settings.set(u"f3y", u" 20");
  program.settings.set(u"f3w", u" 8000");
  program.settings.set(u"f3h", u" 5000");
  program.start();
  EXPECT_EQ(program.form3().placement(), (ui::Placement{10, 20, 8000, 5000}));
  program.form3().setPlacement({0, 0, 28800, 16200});
  program.form3().setState(ui::WindowState::Maximised);
  program.restart();
  EXPECT_EQ(program.settings.get(u"f3h"), u" 5000");
  EXPECT_EQ(program.settings.get(u"maxb"), u"1");
  EXPECT_EQ(program.form3().state(), ui::WindowState::Maximised);
  EXPECT_EQ(program.form3().placement().width, 8000);
}

TEST_F(ShutDownTest, NextStartFindsEverythingAsItWas) {
  addSongs();
  program.form1().List4.select({1}, 1);
  program.form1().List4.setTopIndex(1);
  program.form1().preview.setShare(0.25);
  const Text second = program.form1().List4.List(1);
  program.restart();
  EXPECT_TRUE(program.form1().visible()) << "it was in front";
  EXPECT_EQ(program.form1().List4.ListCount(), 2);
  EXPECT_EQ(program.form1().List4.List(1), second);
  EXPECT_EQ(program.form1().List4.selectedIndexes(), (std::vector<int>{1}));
  EXPECT_EQ(program.form1().List4.TopIndex(), 1);
  EXPECT_EQ(program.form1().preview.share(), 0.25);
  EXPECT_EQ(program.table().niznomusic.size(), 1u);
  EXPECT_EQ(program.form1().folderTree.path(), program.folder.path(u"music/in"));
}

TEST_F(ShutDownTest, SelectionSurvivesAnEndInTheMusicBaseWindowToo) {
  addSongs();
  program.settings.set(u"DirZaBazu", program.musicFolder());
  program.form1().List4.select({0}, 0);
  for (int run = 0; run < 2; ++run) {
    if (program.form1().visible()) program.form1().closeRequest();
    program.restart();
    EXPECT_TRUE(program.form3().visible());
    EXPECT_EQ(program.form1().List4.selectedIndexes(), (std::vector<int>{0}));
  }
}

TEST_F(ShutDownTest, EndBeforeTheStartTouchesNothing) {
  program.folder.write(u"program/Data/nizdes.txt", "\"/x.mp3\"\r\n");
  program.app().requestEnd();
  EXPECT_TRUE(program.app().ended());
  EXPECT_TRUE(program.folder.exists(u"program/Data/nizdes.txt"));
}

TEST_F(ShutDownTest, EndDuringACommandStopsItFirstAndStoresAWholeTable) {
  for (int i = 0; i < 50; ++i) program.song(u"in/Artist - Song" + core::number(std::int64_t{i}) + u".mp3");
  program.startInProcessingWindow();
  program.desktop.then([&] { program.app().requestEnd(); });
  bool endedInside = true;
  program.desktop.then([&] { endedInside = program.app().ended(); });
  program.addFolder(program.folder.path(u"music/in"));
  EXPECT_FALSE(endedInside);
  EXPECT_TRUE(program.app().ended());
  EXPECT_EQ(program.ends, 1);
  EXPECT_FALSE(program.windows().dialog1.visible());
  const int stored = program.table().brojfajlova();
  program.restart();
  EXPECT_EQ(program.table().brojfajlova(), stored);
  EXPECT_EQ(program.table().rows(), stored);
}

TEST_F(ShutDownTest, WhatAnotherInstanceHasSavedMeanwhileIsKeptAndTold) {
  addSongs();
  core::DataFolder other(program.files, program.settings, program.programFolder());
  core::TrackTable theirs;
  other.readNames(theirs);
  other.readTags(theirs);
  theirs.removeRow(1);
  theirs.appendPath(program.song(u"there/Kora - Rain.mp3"));
  theirs.resizeColumns();
  theirs.setBrojfajlova(2);
  other.SaveID3nizove(theirs);
  other.savenizove(theirs);
  program.dialogs.expect(
      u"Another instance of this program has saved its list meanwhile. Its files that are not on this list "
      u"were "
      u"kept (1): the next start shows them. All tags will be read again.",
      u"Velmora", platform::Answer::Ok);
  program.restart();
  const core::TrackTable& table = program.table();
  ASSERT_EQ(table.brojfajlova(), 3);
  EXPECT_EQ(table.path(3), theirs.path(2));
  EXPECT_EQ(table.autori, (std::vector<Text>{u"ABBA ", u"", u"Kora "}));
  for (int row = 1; row <= 3; ++row) EXPECT_TRUE(table.track(row).imaid3v1.isNothing());
}

TEST_F(ShutDownTest, WhatIsNoChoiceOfSongsAndNoChoiceWithItsOkIsNotStored) {
  addSongs();
  program.form1().ostali.click();
  program.form1().List4.select({0}, 0);
  program.desktop.then([&] {
    program.windows().form7.differentFilename.click();
    program.form3().closeRequest();
  });
  program.form1().duplicateOptions.click();
  EXPECT_TRUE(program.app().ended());
  EXPECT_EQ(program.settings.get(u"dupli"), u"True");
  program.forget();
  program.start();
  EXPECT_EQ(program.form1().List4.SelCount(), 0);
  EXPECT_TRUE(program.windows().form7.similarFilename.chosen());
}

TEST_F(ShutDownTest, EndDuringAModalWindowClosesThatFirst) {
  program.startInProcessingWindow();
  program.desktop.then([&] { program.form3().closeRequest(); });
  program.form1().options.click();
  EXPECT_TRUE(program.app().ended());
  EXPECT_FALSE(program.windows().form5.visible());

  test::HeadlessVelmora starting;
  starting.settings.set(u"showtipsasstartup", u"True");
  starting.desktop.then([] {});
  starting.desktop.then([&] { starting.app().requestEnd(); });
  starting.start();
  EXPECT_TRUE(starting.app().ended());
  EXPECT_EQ(starting.settings.get(u"ghb"), u" 0") << "the load was finished before";
}

}  // namespace
}  // namespace velmora::app
