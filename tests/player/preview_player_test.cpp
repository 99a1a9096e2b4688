#include "player/preview_player.h"

#include "tests/support/house_world.h"
#include "tests/support/mp3_maker.h"

namespace velmora::player {
namespace {

using platform::PlayState;

TEST(PreviewPlayer, SoundIsLogarithmicInTheShareOfTheTrack) {
  for (const auto& [share, sound] :
       {std::pair{0.0, -10000}, {1.0, 0}, {0.5, -752}, {0.1, -2499}, {-1.0, -10000}, {2.0, 0}})
    EXPECT_EQ(soundOfShare(share), sound);
}

TEST(PreviewPlayer, TimeIsMinutesRoundedAndSecondsCut) {
  for (const auto& [seconds, text] : {std::pair{0.0, u"00:00"},
                                      {9.9, u"00:09"},
                                      {75.4, u"01:15"},
                                      {3599.0, u"59:59"},
                                      {6000.0, u"100:00"},
                                      {-1.0, u"00:00"}})
    EXPECT_EQ(timeText(seconds), text);
}

struct PreviewPlayerTest : test::HouseWorld {
  PreviewPlayer& player = house.player;
  test::Texts paths;

  PreviewPlayerTest() {
    for (const TextView name : {u"a - one.mp3", u"b - two.mp3"}) {
      paths.push_back(folder.write(name, test::mpegFrames()));
      table.appendPath(paths.back());
      form1.List4.AddItem(paths.back());
      media.know(paths.back(), 100);
    }
    table.resizeColumns();
    table.setBrojfajlova(2);
    table.ton = -300;
  }
  void expectShown(double share, TextView time) {
    EXPECT_DOUBLE_EQ(form1.player.position.share(), share);
    EXPECT_EQ(core::toBytes(form1.player.time.text()), core::toBytes(time));
  }
};

TEST_F(PreviewPlayerTest, DoubleClickPlaysTheRowAndShowsIt) {
  form1.Text1.setText(u"a - one");
  form1.List4.select({1}, 1);
  table.puniliste = 1;
  player.List4DoubleClick();
  EXPECT_TRUE(media.opened.empty()) << "quiet while lists are refilled";
  table.puniliste = 0;
  player.List4DoubleClick();
  EXPECT_EQ(media.file(), paths[1]);
  EXPECT_EQ(media.state(), PlayState::Playing);
  EXPECT_EQ(media.volume, -300);
  EXPECT_EQ(form1.statusLabel.text(), u"Now playing: " + paths[1]);
  EXPECT_EQ(table.currentRow, 2);
  EXPECT_EQ(form1.path.text(), paths[1]);
  EXPECT_EQ(form1.Text1.text(), u"b - two");
  EXPECT_EQ(player.durationOf(paths[1]), 100);
  EXPECT_EQ(player.durationOf(paths[0]), 0) << "the length of its own file alone";
  form1.preview.setShare(0.5);
  player.soundMoved();
  EXPECT_EQ(table.ton, -752);
  EXPECT_EQ(media.volume, -752);
}

TEST_F(PreviewPlayerTest, OtherFilesOpenWithTheirOwnProgram) {
  form1.ostali.setChosen(true);
  form1.List4.select({0}, 0);
  player.List4DoubleClick();
  EXPECT_EQ(desktop.opened, test::Texts{paths[0]});
  EXPECT_TRUE(media.opened.empty());
}

TEST_F(PreviewPlayerTest, ABrokenFileLeavesItStopped) {
  table.track(1).nizdes = u"/nowhere/gone.mp3";
  player.playRow(1);
  EXPECT_EQ(media.state(), PlayState::Stopped);
  EXPECT_FALSE(form1.player.Timer4.on());
  player.tick();
  expectShown(0, u"00:00");
}

TEST_F(PreviewPlayerTest, TheTimerRunsWhilePlayingOnly) {
  int started = 0;
  player.onPlaying = [&] { ++started; };
  player.playRow(1);
  EXPECT_TRUE(form1.player.Timer4.on());
  player.pause();
  EXPECT_FALSE(form1.player.Timer4.on());
  player.play();
  EXPECT_TRUE(form1.player.Timer4.on());
  EXPECT_EQ(started, 2);
  media.advance(200);
  EXPECT_FALSE(form1.player.Timer4.on()) << "the file came to its end";
}

TEST_F(PreviewPlayerTest, TicksMoveTheKnobAndTheTimeAndStopPutsThemBack) {
  player.playRow(1);
  player.tick();
  expectShown(0, u"00:00");
  media.advance(25);
  player.tick();
  expectShown(0.25, u"00:25");
  player.pause();
  expectShown(0.25, u"00:25");
  player.stop();
  expectShown(0, u"00:00");
  EXPECT_EQ(media.position(), 0);
}

TEST_F(PreviewPlayerTest, TheKnobFollowsTheMouseAndSeeksWhenLetGo) {
  player.playRow(1);
  media.advance(10);
  player.positionPressed();
  EXPECT_FALSE(form1.player.Timer4.on());
  form1.player.position.setShare(0.75);
  player.positionMoved();
  EXPECT_EQ(form1.player.time.text(), u"01:15");
  EXPECT_EQ(media.position(), 10) << "nothing is sought before the knob is let go";
  const int focused = form1.List4.focusRequests();
  player.positionReleased();
  EXPECT_EQ(media.position(), 75);
  EXPECT_TRUE(form1.player.Timer4.on());
  EXPECT_EQ(form1.List4.focusRequests(), focused + 1);

  player.pause();
  player.positionPressed();
  player.positionReleased();
  EXPECT_FALSE(form1.player.Timer4.on()) << "a paused player has no beat";
}

TEST_F(PreviewPlayerTest, GivesUpItsFileAndGoesOnAtTheSamePlaceUnderTheNewName) {
  player.playRow(1);
  media.advance(42);
  const Text renamed = folder.path(u"a - uno.mp3");
  media.know(renamed, 100);
  { const platform::FileHandOver handOver(player, paths[1]); }
  EXPECT_EQ(media.opened.size(), 1U) << "another file is not given up";
  {
    platform::FileHandOver handOver(player, paths[0]);
    ASSERT_TRUE(handOver.held());
    EXPECT_EQ(media.file(), folder.path(u"private.wav"));
    EXPECT_EQ(media.volume, -4452);
    EXPECT_FALSE(player.holds(paths[0]));
    handOver.renamed(renamed);
  }
  EXPECT_EQ(media.file(), renamed);
  EXPECT_EQ(media.position(), 42);
  EXPECT_EQ(media.state(), PlayState::Playing);
  EXPECT_EQ(media.volume, -300);
  expectShown(0.42, u"00:42");
}

TEST_F(PreviewPlayerTest, APausedFileComesBackPausedAndAStoppedOneStopped) {
  player.playRow(1);
  media.advance(42);
  player.pause();
  { platform::FileHandOver handOver(player, paths[0]); }
  EXPECT_EQ(media.state(), PlayState::Paused);
  EXPECT_EQ(media.position(), 42);
  player.stop();
  { platform::FileHandOver handOver(player, paths[0]); }
  EXPECT_EQ(media.state(), PlayState::Stopped);
  EXPECT_EQ(media.file(), paths[0]);
}

TEST_F(PreviewPlayerTest, WhatTheUserDoesMeanwhileCounts) {
  player.playRow(1);
  media.advance(42);
  {
    platform::FileHandOver handOver(player, paths[0]);
    player.pause();
  }
  EXPECT_EQ(media.state(), PlayState::Paused);
  {
    platform::FileHandOver handOver(player, paths[0]);
    player.playRow(2);
  }
  EXPECT_EQ(media.file(), paths[1]) << "the other file that was chosen plays on";
}

TEST_F(PreviewPlayerTest, CloseEmptiesThePlayer) {
  player.playRow(1);
  player.close();
  EXPECT_TRUE(media.file().empty());
  EXPECT_FALSE(player.holds(paths[0]));
  expectShown(0, u"00:00");
}

}  // namespace
}  // namespace velmora::player
