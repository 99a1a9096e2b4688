#include <gtest/gtest.h>

#include "core/number_text.h"
#include "tests/support/headless_velmora.h"

namespace velmora::app {
namespace {

using platform::Answer;

const Text folderQuestion =
    u"Music Base folder was not selected. You can select now or latter by click on most left folder icon."
    u"\r\n\r\nSelect now?";
const Text reviewQuestion = u"Process in progres and will be stopped. You want to continue ?";

struct FrontWindowTest : testing::Test {
  test::HeadlessVelmora program;

  void startWithSongs() {
    program.song(u"in/ABBA - Waterloo.mp3");
    program.startWithMusic();
  }
};

TEST_F(FrontWindowTest, ProcessingWindowAndBackAgain) {
  program.settings.set(u"sourceprozor", u" 1");
  program.start();
  program.form3().showProcessingWindow.click();
  EXPECT_EQ(program.shown(), "processing");
  EXPECT_TRUE(program.form1().enabled());
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::Processing);
  EXPECT_EQ(program.settings.get(u"sourceprozor"), u" 1");
  program.form3().onActivate();
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::Processing)
      << "a late notice of a window that was left";

  program.form1().closeRequest();
  EXPECT_EQ(program.shown(), "base");
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::MusicBase);
  EXPECT_FALSE(program.app().ended()) << "closing the Processing Window only hides it";
  EXPECT_EQ(program.table().sourceprozor, 0) << "without rows there is nothing to come back to";
  EXPECT_EQ(program.form3().showNewMusic.caption(), u"     Show New Music Window    ");
}

TEST_F(FrontWindowTest, AssortNeedsRowsAndOffersToChooseTheBase) {
  startWithSongs();
  program.dialogs.expect(folderQuestion, u"New Music Files Window", Answer::Yes);
  program.dialogs.expectFolder(u"Select main folder for Your Music Base", program.musicFolder());
  program.form1().assort.click();
  EXPECT_EQ(program.dialogs.lastIcon, platform::Icon::Question);
  EXPECT_EQ(program.shown(), "base, new music");
  EXPECT_EQ(program.table().sourceprozor, 1);
  EXPECT_EQ(program.settings.get(u"DirZaBazu"), program.musicFolder());
  EXPECT_EQ(program.table().dirzabazu, program.musicFolder());
  EXPECT_EQ(program.form3().rootLabel.text(), program.musicFolder());
  EXPECT_NE(program.windows().form2.freeLabel.text(), u"") << "the room on the base that was just chosen";
  program.dialogs.expectFolder(u"Select main folder for Your Music Base", program.folder.path(u"a \"b\""));
  program.dialogs.expectTitle(u"Music Base", Answer::Ok);
  program.form3().selectMainFolder.click();
  EXPECT_EQ(program.settings.get(u"DirZaBazu"), program.musicFolder()) << "no record could carry the other";

  program.form3().showProcessingWindow.click();
  EXPECT_EQ(program.shown(), "processing");
  program.form1().assort.click();
  EXPECT_EQ(program.shown(), "base, new music") << "with a base there is nothing to ask";
}

TEST_F(FrontWindowTest, NewMusicOpensAndClosesBesideTheBaseAndComesUpAgainAtTheNextStart) {
  program.settings.set(u"DirZaBazu", program.folder.mkdir(u"base"));
  startWithSongs();
  program.form1().closeRequest();
  EXPECT_EQ(program.shown(), "base, new music")
      << "closing the Processing Window leads on with the working list";
  EXPECT_EQ(program.form3().showNewMusic.caption(), u"     Hide New Music Window    ");
  program.restart();
  EXPECT_EQ(program.shown(), "base, new music");

  program.settings.set(u"plfr", u"True");
  program.windows().form2.onActivate();
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::NewMusic);
  program.windows().form2.closeRequest();
  EXPECT_EQ(program.shown(), "base");
  EXPECT_EQ(program.table().sourceprozor, 0);
  EXPECT_EQ(program.table().aktivniprozor, core::WindowAtWork::MusicBase);
  EXPECT_TRUE(program.form3().plfr.checked());
  EXPECT_EQ(program.form3().showNewMusic.caption(), u"     Show New Music Window    ");
  program.restart();
  EXPECT_EQ(program.shown(), "base");

  program.form3().showNewMusic.click();
  EXPECT_EQ(program.shown(), "base, new music");
  EXPECT_FALSE(program.form3().plfr.checked());
  EXPECT_EQ(program.settings.get(u"plfr"), u"True") << "switched off for as long as it is open";
  program.form3().showNewMusic.click();
  EXPECT_EQ(program.shown(), "base");
}

TEST_F(FrontWindowTest, ClosingDuringAReviewAsksFirst) {
  program.startInProcessingWindow();
  int exits = 0;
  program.app().events().onExitReview = [&] { ++exits; };
  program.table().vrsta = core::Review::Duplicates;
  program.dialogs.expect(reviewQuestion, u"Processing Window", Answer::No);
  program.form1().closeRequest();
  EXPECT_TRUE(program.form1().visible());
  EXPECT_EQ(exits, 0);
  EXPECT_EQ(program.table().vrsta, core::Review::Duplicates);

  program.dialogs.expect(reviewQuestion, u"Processing Window", Answer::Yes);
  program.form1().closeRequest();
  EXPECT_FALSE(program.form1().visible());
  EXPECT_EQ(exits, 1);
  EXPECT_EQ(program.table().vrsta, core::Review::None);
}

TEST_F(FrontWindowTest, ReviewStaysStoredWhenTheProgramEndsInTheMiddleOfIt) {
  program.startInProcessingWindow();
  program.table().vrsta = core::Review::Duplicates;
  program.app().requestEnd();
  EXPECT_EQ(program.settings.get(u"vrsta"), u" 2");
  EXPECT_EQ(program.settings.get(u"aktivniprozor"), u" 1");
}

TEST_F(FrontWindowTest, CloseDuringACommandHappensBehindIt) {
  for (int i = 0; i < 9; ++i) program.song(u"in/Artist - Song" + core::number(std::int64_t{i}) + u".mp3");
  program.settings.set(u"DirZaBazu", program.folder.mkdir(u"base"));
  program.startInProcessingWindow();
  program.desktop.then([&] { program.form1().closeRequest(); });
  program.desktop.then([&] {
    EXPECT_TRUE(program.form1().visible());
    EXPECT_TRUE(program.table().Stop);
  });
  program.addFolder(program.folder.path(u"music/in"));
  EXPECT_EQ(program.shown(), "base");
  EXPECT_FALSE(program.windows().dialog1.visible());
}

TEST_F(FrontWindowTest, PlaceOfTheProcessingWindowIsKept) {
  program.startInProcessingWindow();
  program.form1().setPlacement({600, 700, 12000, 9000});
  program.form1().onDeactivate();
  EXPECT_EQ(program.settings.get(u"f1x"), u" 600");
  EXPECT_EQ(program.settings.get(u"f1y"), u" 700");
  program.form1().setState(ui::WindowState::Minimised);
  program.form1().setPlacement({-32000, -32000, 100, 100});
  program.form1().onDeactivate();
  EXPECT_EQ(program.settings.get(u"f1x"), u" 600");
  program.restart();
  EXPECT_EQ(program.form1().placement().left, 600);
}

}  // namespace
}  // namespace velmora::app
