#include "player/preview_player.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/fake_media_player.h"
#include "tests/support/mp3_maker.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temp_folder.h"

namespace velmora::player {
namespace {

using platform::PlayState;

TEST(PreviewPlayer, SoundIsLogarithmicInTheShareOfTheTrack) {
  EXPECT_EQ(soundOfShare(0), -10000);
  EXPECT_EQ(soundOfShare(1), 0);
  EXPECT_EQ(soundOfShare(0.5), -752);
  EXPECT_EQ(soundOfShare(0.1), -2499);
  EXPECT_EQ(soundOfShare(-1), -10000);
  EXPECT_EQ(soundOfShare(2), 0);
}

TEST(PreviewPlayer, TimeIsMinutesRoundedAndSecondsCut) {
  EXPECT_EQ(timeText(0), u"00:00");
  EXPECT_EQ(timeText(9.9), u"00:09");
  EXPECT_EQ(timeText(75.4), u"01:15");
  EXPECT_EQ(timeText(3599), u"59:59");
  EXPECT_EQ(timeText(6000), u"100:00");
  EXPECT_EQ(timeText(-1), u"00:00");
}

class PreviewPlayerTest : public testing::Test {
 protected:
  PreviewPlayerTest() {
    for (const TextView name : {u"a - one.mp3", u"b - two.mp3"}) {
      paths_.push_back(folder_.write(name, test::mpegFrames()));
      table_.appendPath(paths_.back());
      form1_.List4.AddItem(paths_.back());
      media_.know(paths_.back(), 100);
    }
    table_.resizeColumns();
    table_.setBrojfajlova(2);
    table_.ton = -300;
  }
  void expectShown(double share, TextView time) {
    EXPECT_DOUBLE_EQ(form1_.player.position.share(), share);
    EXPECT_EQ(core::toBytes(form1_.player.time.text()), core::toBytes(time));
  }

  test::TempFolder folder_;
  system::PosixFiles files_;
  test::ScriptedDesktop desktop_;
  test::FakeMediaPlayer media_;
  core::TrackTable table_;
  ui::Form1 form1_;
  std::vector<Text> paths_;
  tags::TagCache cache_{table_, files_};
  tags::FilePanel panel_{table_, files_, cache_, form1_};
  PreviewPlayer player_{{table_, media_, desktop_, panel_, form1_, u"/program/private.wav"}};
};

TEST_F(PreviewPlayerTest, DoubleClickPlaysTheRowAndShowsIt) {
  form1_.List4.select({1}, 1);
  player_.List4DoubleClick();
  EXPECT_EQ(media_.file(), paths_[1]);
  EXPECT_EQ(media_.state(), PlayState::Playing);
  EXPECT_EQ(media_.volume, -300);
  EXPECT_EQ(form1_.statusLabel.text(), u"Now playing: " + paths_[1]);
  EXPECT_EQ(table_.currentRow, 2);
  EXPECT_EQ(form1_.path.text(), paths_[1]);
}

TEST_F(PreviewPlayerTest, ThePanelShowsThePlayedFileWithItsOwnName) {
  form1_.Text1.setText(u"a - one");
  form1_.List4.setListIndex(1);
  player_.List4DoubleClick();
  EXPECT_EQ(form1_.path.text(), paths_[1]);
  EXPECT_EQ(form1_.Text1.text(), u"b - two");
}

TEST_F(PreviewPlayerTest, DoubleClickIsQuietWhileListsAreRefilled) {
  form1_.List4.select({1}, 1);
  table_.puniliste = 1;
  player_.List4DoubleClick();
  EXPECT_TRUE(media_.opened.empty());
}

TEST_F(PreviewPlayerTest, OtherFilesOpenWithTheirOwnProgram) {
  form1_.ostali.setChosen(true);
  form1_.List4.select({0}, 0);
  player_.List4DoubleClick();
  EXPECT_EQ(desktop_.opened, std::vector<Text>{paths_[0]});
  EXPECT_TRUE(media_.opened.empty());
}

TEST_F(PreviewPlayerTest, ABrokenFileLeavesItStopped) {
  table_.track(1).nizdes = u"/nowhere/gone.mp3";
  player_.playRow(1);
  EXPECT_EQ(media_.state(), PlayState::Stopped);
  EXPECT_FALSE(form1_.player.Timer4.on());
  player_.tick();
  expectShown(0, u"00:00");
}

TEST_F(PreviewPlayerTest, TheTimerRunsWhilePlayingOnly) {
  int started = 0;
  player_.onPlaying = [&] { ++started; };
  player_.playRow(1);
  EXPECT_TRUE(form1_.player.Timer4.on());
  player_.pause();
  EXPECT_FALSE(form1_.player.Timer4.on());
  player_.play();
  EXPECT_TRUE(form1_.player.Timer4.on());
  EXPECT_EQ(started, 2);
  media_.advance(200);
  EXPECT_FALSE(form1_.player.Timer4.on()) << "the file came to its end";
}

TEST_F(PreviewPlayerTest, TicksMoveTheKnobAndTheTimeAndStopPutsThemBack) {
  player_.playRow(1);
  player_.tick();
  expectShown(0, u"00:00");
  media_.advance(25);
  player_.tick();
  expectShown(0.25, u"00:25");
  player_.pause();
  expectShown(0.25, u"00:25");
  player_.stop();
  expectShown(0, u"00:00");
  EXPECT_EQ(media_.position(), 0);
}

TEST_F(PreviewPlayerTest, TheKnobFollowsTheMouseAndSeeksWhenLetGo) {
  player_.playRow(1);
  media_.advance(10);
  player_.positionPressed();
  EXPECT_FALSE(form1_.player.Timer4.on());
  form1_.player.position.setShare(0.75);
  player_.positionMoved();
  EXPECT_EQ(form1_.player.time.text(), u"01:15");
  EXPECT_EQ(media_.position(), 10) << "nothing is sought before the knob is let go";
  const int focused = form1_.List4.focusRequests();
  player_.positionReleased();
  EXPECT_EQ(media_.position(), 75);
  EXPECT_TRUE(form1_.player.Timer4.on());
  EXPECT_EQ(form1_.List4.focusRequests(), focused + 1);

  player_.pause();
  player_.positionPressed();
  player_.positionReleased();
  EXPECT_FALSE(form1_.player.Timer4.on()) << "a paused player has no beat";
}

TEST_F(PreviewPlayerTest, TheSoundSliderSetsTonAndVolume) {
  form1_.preview.setShare(0.5);
  player_.soundMoved();
  EXPECT_EQ(table_.ton, -752);
  EXPECT_EQ(media_.volume, -752);
}

TEST_F(PreviewPlayerTest, GivesUpItsFileAndGoesOnAtTheSamePlaceUnderTheNewName) {
  player_.playRow(1);
  media_.advance(42);
  const Text renamed = folder_.path(u"a - uno.mp3");
  media_.know(renamed, 100);
  {
    FileHandOver handOver(player_, paths_[0]);
    ASSERT_TRUE(handOver.held());
    EXPECT_EQ(media_.file(), u"/program/private.wav");
    EXPECT_EQ(media_.volume, -4452);
    EXPECT_FALSE(player_.holds(paths_[0]));
    handOver.renamed(renamed);
  }
  EXPECT_EQ(media_.file(), renamed);
  EXPECT_EQ(media_.position(), 42);
  EXPECT_EQ(media_.state(), PlayState::Playing);
  EXPECT_EQ(media_.volume, -300);
  expectShown(0.42, u"00:42");
}

TEST_F(PreviewPlayerTest, APausedFileComesBackPausedAndAStoppedOneStopped) {
  player_.playRow(1);
  media_.advance(42);
  player_.pause();
  { FileHandOver handOver(player_, paths_[0]); }
  EXPECT_EQ(media_.state(), PlayState::Paused);
  EXPECT_EQ(media_.position(), 42);
  player_.stop();
  { FileHandOver handOver(player_, paths_[0]); }
  EXPECT_EQ(media_.state(), PlayState::Stopped);
  EXPECT_EQ(media_.file(), paths_[0]);
}

TEST_F(PreviewPlayerTest, OtherFilesAreNotGivenUp) {
  player_.playRow(1);
  { const FileHandOver handOver(player_, paths_[1]); }
  EXPECT_EQ(media_.opened, std::vector<Text>{paths_[0]});
  EXPECT_FALSE(player_.holds(u""));
}

TEST_F(PreviewPlayerTest, WhatTheUserDoesMeanwhileCounts) {
  player_.playRow(1);
  media_.advance(42);
  {
    FileHandOver handOver(player_, paths_[0]);
    player_.pause();
  }
  EXPECT_EQ(media_.state(), PlayState::Paused);
  {
    FileHandOver handOver(player_, paths_[0]);
    player_.playRow(2);
  }
  EXPECT_EQ(media_.file(), paths_[1]) << "the other file that was chosen plays on";
}

TEST_F(PreviewPlayerTest, CloseEmptiesThePlayer) {
  player_.playRow(1);
  player_.close();
  EXPECT_TRUE(media_.file().empty());
  EXPECT_FALSE(player_.holds(paths_[0]));
  expectShown(0, u"00:00");
}

TEST_F(PreviewPlayerTest, KnowsTheLengthOfItsFileAlone) {
  player_.playRow(1);
  EXPECT_EQ(player_.durationOf(paths_[0]), 100);
  EXPECT_EQ(player_.durationOf(paths_[1]), 0);
}

}  // namespace
}  // namespace velmora::player
