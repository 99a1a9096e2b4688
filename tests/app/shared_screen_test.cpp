#include "app/shared_screen.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_desktop.h"

namespace velmora::app {
namespace {

constexpr int titleBar = 540;

struct SharedScreenTest : testing::Test {
  test::ScriptedDesktop desktop;
  ui::Form3 base;
  ui::Form2 newMusic;
  SharedScreen screen{desktop, base, newMusic};

  /// A screen of 1280 x 800 pixels at 96 to the inch.
  SharedScreenTest() { desktop.room = {0, 0, 19200, 12000}; }

  void expectOneAboveTheOther() const {
    const ui::Placement& upper = base.placement();
    const ui::Placement& lower = newMusic.placement();
    EXPECT_GE(upper.top, 0);
    EXPECT_GE(lower.top, upper.top + upper.height + titleBar);
    EXPECT_LE(lower.top + lower.height + titleBar, desktop.room.height);
    EXPECT_GE(lower.height, 4320);
    EXPECT_GE(upper.height, 4320);
    EXPECT_EQ(lower.left, upper.left);
    EXPECT_EQ(lower.width, upper.width);
  }
};

TEST_F(SharedScreenTest, AWindowWithRoomBeneathItStaysWhereItIs) {
  const ui::Placement place = {900, 300, 15000, 5000};
  base.setPlacement(place);
  screen.share();
  EXPECT_EQ(base.placement(), place);
  expectOneAboveTheOther();
}

TEST_F(SharedScreenTest, ALowWindowMovesUpAndATallOneBecomesLower) {
  base.setPlacement({900, 4000, 15000, 5000});
  screen.share();
  EXPECT_LT(base.placement().top, 4000);
  EXPECT_EQ(base.placement().height, 5000);
  expectOneAboveTheOther();
  screen.giveBack();
  EXPECT_EQ(base.placement(), (ui::Placement{900, 4000, 15000, 5000}));

  base.setPlacement({900, 100, 15000, 11000});
  screen.share();
  screen.share();
  EXPECT_LT(base.placement().height, 11000);
  expectOneAboveTheOther();
  EXPECT_EQ(screen.basePlacement().height, 11000) << "what is stored is the window's own place";
  screen.giveBack();
  EXPECT_EQ(base.placement(), (ui::Placement{900, 100, 15000, 11000}));
}

TEST_F(SharedScreenTest, AMaximisedWindowIsMaximisedAgainAfterwards) {
  base.setPlacement({900, 400, 15000, 5000});
  base.setState(ui::WindowState::Maximised);
  screen.share();
  EXPECT_EQ(base.state(), ui::WindowState::Normal);
  EXPECT_EQ(screen.baseState(), ui::WindowState::Maximised);
  EXPECT_EQ(base.placement().width, desktop.room.width);
  expectOneAboveTheOther();
  screen.giveBack();
  EXPECT_EQ(base.state(), ui::WindowState::Maximised);
  EXPECT_EQ(base.placement(), (ui::Placement{900, 400, 15000, 5000}));
}

TEST_F(SharedScreenTest, AScreenThatIsNotKnownLeavesBothToTheView) {
  desktop.room = {};
  base.setPlacement({900, 100, 15000, 11000});
  screen.share();
  EXPECT_EQ(base.placement(), (ui::Placement{900, 100, 15000, 11000}));
  EXPECT_EQ(newMusic.placement(), ui::Placement{});
  screen.giveBack();
}

}  // namespace
}  // namespace velmora::app
