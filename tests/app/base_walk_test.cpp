// Long walks of random commands in the Music Base Window and the New Music Window, on one volume and across
// two.

#include "tests/support/base_house.h"

namespace velmora {
namespace {

using platform::Answer;
using platform::Buttons;
using test::TreeSnapshot;

class BaseWalk : public testing::TestWithParam<std::tuple<unsigned, bool>> {
 protected:
  void SetUp() override { house.start(); }

  static constexpr int steps = 150;
  test::BaseHouse house{std::get<1>(GetParam())};
  test::Dice random{std::get<0>(GetParam())};
};

TEST_P(BaseWalk, WhateverIsPressedEveryFileIsThereWithWhatItHeld) {
  house.program.dialogs.otherwise = [this](Buttons buttons) {
    if (buttons != Buttons::AbortRetryIgnore) return Answer::Ok;
    return random(4) == 0 ? Answer::Abort : Answer::Ignore;
  };
  auto contents = house.contents();
  for (int step = 0; step < steps; ++step) {
    house.pickAnything(random);
    random(2) == 0 ? house.moveNameOrUndo(random) : house.changeBase(random);
    house.expectAtRest();
    const auto now = house.contents();
    ASSERT_TRUE(now == contents) << "at step " << step << ": " << contents.size() << " files are "
                                 << now.size() << TreeSnapshot::of(house.base());
    if (house.program.table().brojfajlova() > 0 || step % 10 > 0) continue;
    house.addSongs();
    contents = house.contents();
  }
}

TEST_P(BaseWalk, MovesAndMadeFoldersAreAllTakenBack) {
  house.program.dialogs.otherwise = [](Buttons) { return Answer::Ok; };
  const TreeSnapshot music = TreeSnapshot::of(house.music());
  const TreeSnapshot base = TreeSnapshot::of(house.base());
  const double bytes = house.program.table().velicinasfiles;
  for (int step = 0; step < steps; ++step) {
    house.pickAnything(random);
    house.moveNameOrUndo(random);
    house.expectAtRest();
    ASSERT_FALSE(HasFailure()) << "at step " << step;
  }
  house.undoAll();
  EXPECT_EQ(TreeSnapshot::of(house.music()), music);
  EXPECT_EQ(TreeSnapshot::of(house.base()), base);
  EXPECT_EQ(house.program.table().velicinasfiles, bytes);
  test::expectAsLoadedAfresh(house.program, house.music());
}

INSTANTIATE_TEST_SUITE_P(Seeds, BaseWalk,
                         testing::Combine(testing::ValuesIn(test::walkSeeds(2)), testing::Bool()));

}  // namespace
}  // namespace velmora
