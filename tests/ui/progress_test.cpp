#include "ui/progress.h"

#include <cmath>
#include <gtest/gtest.h>
#include <utility>

#include "tests/support/scripted_desktop.h"

namespace velmora::ui {
namespace {

struct ProgressTest : testing::Test {
  core::TrackTable table;
  Windows windows;
  test::ScriptedDesktop desktop;
  Progress progress{table, windows, desktop};

  void SetUp() override {
    table.aktivniprozor = core::WindowAtWork::Processing;
    windows.form1.show();
  }
};

TEST_F(ProgressTest, ShowsItsWindowAndKeepsTheProcessingWindowFromTheUser) {
  bool enabledAtPump = true;
  desktop.then([&] { enabledAtPump = windows.form1.enabled(); });
  progress.show(u"Make List ...");
  EXPECT_TRUE(windows.dialog1.visible());
  EXPECT_EQ(windows.dialog1.text.text(), u"Make List ...");
  EXPECT_FALSE(windows.form1.enabled());
  EXPECT_FALSE(enabledAtPump) << "a second click in the queue would start a second command";
  progress.close();
  EXPECT_FALSE(windows.dialog1.visible());
  EXPECT_FALSE(windows.form1.enabled()) << "the closing step enables it";
}

TEST_F(ProgressTest, PumpsOnlyWhenThreeSecondsHavePassed) {
  progress.show(u"x");
  const int before = desktop.pumps;
  desktop.now += 2999;
  progress.UpdateProgress(10);
  EXPECT_EQ(desktop.pumps, before);
  desktop.now += 1;
  progress.UpdateProgress(20);
  EXPECT_EQ(desktop.pumps, before + 1);
  desktop.now += 2999;
  progress.UpdateProgress(30);
  EXPECT_EQ(desktop.pumps, before + 1) << "the beat counts from the last pump";
  progress.pump();
  desktop.now += 2999;
  progress.UpdateProgress(40);
  EXPECT_EQ(desktop.pumps, before + 2) << "a pump of another kind counts too";
}

TEST_F(ProgressTest, BarStaysBetweenNothingAndAll) {
  progress.show(u"x");
  for (const auto& [given, shown] :
       {std::pair{42.5, 42.5}, {-3.0, 0.0}, {250.0, 100.0}, {std::nan(""), 0.0}}) {
    progress.UpdateProgress(given);
    EXPECT_EQ(windows.dialog1.bar.percent(), shown);
  }
}

TEST_F(ProgressTest, StopLivesUntilTheNextRun) {
  progress.show(u"first");
  progress.stop();
  progress.show(u"second text of the same run");
  EXPECT_TRUE(table.Stop);
  progress.close();
  EXPECT_TRUE(table.Stop);
  progress.show(u"next run");
  EXPECT_FALSE(table.Stop);
}

TEST_F(ProgressTest, MinimizeTakesTheWindowInFrontAlongAndRestoreBringsBothBack) {
  progress.show(u"x");
  progress.minimize();
  EXPECT_EQ(windows.form1.state(), WindowState::Minimised);
  EXPECT_EQ(windows.form1.caption(), u"Please Wait ...");
  EXPECT_FALSE(windows.dialog1.visible());

  progress.show(u"the next text does not bring it up");
  EXPECT_FALSE(windows.dialog1.visible());

  progress.restore();
  EXPECT_EQ(windows.form1.state(), WindowState::Normal);
  EXPECT_TRUE(windows.dialog1.visible());

  progress.minimize();
  progress.close();
  EXPECT_EQ(windows.form1.state(), WindowState::Normal);
  EXPECT_EQ(windows.form1.caption(), u"Procesing Window");

  table.aktivniprozor = core::WindowAtWork::MusicBase;
  progress.show(u"of the Music Base");
  progress.minimize();
  EXPECT_EQ(windows.form3.state(), WindowState::Minimised);
  EXPECT_EQ(windows.form1.state(), WindowState::Normal);
  progress.close();
  EXPECT_EQ(windows.form3.state(), WindowState::Normal);
}

TEST_F(ProgressTest, NothingHappensToWindowsWithoutARun) {
  windows.form1.setState(WindowState::Minimised);
  progress.restore();
  progress.minimize();
  progress.close();
  EXPECT_FALSE(windows.dialog1.visible());
  EXPECT_EQ(windows.form1.state(), WindowState::Minimised);
  EXPECT_EQ(windows.form1.caption(), u"Processing Window");
}

}  // namespace
}  // namespace velmora::ui
