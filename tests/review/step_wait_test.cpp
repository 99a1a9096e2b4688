#include "core/text.h"
#include "review/fly_in.h"
#include "tests/support/house_world.h"

namespace velmora::review {
namespace {

struct StepWaitTest : test::HouseWorld {
  StepWaitTest() {
    for (const TextView name : {u"a", u"b", u"c"}) {
      table.appendPath(folder.write(Text(name) + u".mp3", "song"));
      form1.List4.AddItem(table.path(table.rows()));
    }
    table.setBrojfajlova(3);
    table.resizeColumns();
    table.vrsta = core::Review::CheckFix;
    settings.set(u"vrsta", u" 1");
  }
  bool stop(int row) { return house.reviews.stepWait.stepWait(row, StopKind::Dalje, u"What now?"); }
  void user(std::function<void()> acts) { desktop.then(std::move(acts)); }
  ReviewState& state = house.reviews.state;
};

TEST_F(StepWaitTest, StopShowsItsRowAndAsksUntilAnAnswerComes) {
  user([] {});
  user([&] {
    EXPECT_TRUE(state.waiting);
    EXPECT_EQ(form1.List4.selectedIndexes(), (std::vector<int>{1}));
    EXPECT_TRUE(form1.List6.enabled());
    EXPECT_EQ(form1.review.question.text(), u"What now?");
    EXPECT_EQ(journal.lastUndoMarker(), "fix");
    state.nextPressed = true;
  });
  EXPECT_FALSE(stop(2));
  EXPECT_FALSE(state.waiting || state.nextPressed || form1.List6.enabled());
  EXPECT_EQ(form1.review.question.text(), u"Checking filenames and ID3 tags. . .");

  user([&] { state.acceptPressed = true; });
  EXPECT_TRUE(stop(2));
  EXPECT_FALSE(state.acceptPressed);
}

TEST_F(StepWaitTest, UserWhoMovedOnIsNotAsked) {
  form1.List4.select({2}, 2);
  EXPECT_FALSE(stop(1));
  EXPECT_FALSE(journal.exists());
}

TEST_F(StepWaitTest, UndoAtAStopCountsAsPrevWithoutAReplay) {
  user([&] { house.reviews.actions.undone(); });
  EXPECT_FALSE(stop(1));
  EXPECT_TRUE(state.goBack && state.leaveReview && state.undoPressed);
}

TEST_F(StepWaitTest, HaltWritesNoRecordAndTheProgramsEndEndsIt) {
  state.stopPressed = true;
  house.reviews.stepWait.programEnds = [this] { return house.ending; };
  user([&] { house.ending = true; });
  EXPECT_FALSE(stop(1));
  EXPECT_TRUE(state.leaveReview);
  EXPECT_FALSE(state.stopPressed || journal.exists());
}

TEST_F(StepWaitTest, LettersFlyTogetherInHalfASecondUnlessTheDesktopIsCalm) {
  EXPECT_EQ(flyInFrame(u"abc", 2), u"a  b c");
  EXPECT_EQ(flyInFrame(u"abc", 0), u"abc");
  for (const bool calm : {true, false}) {
    desktop.calm = calm;
    const std::int64_t begin = desktop.now;
    house.reviews.stepWait.flyInText(u"What now?");
    EXPECT_EQ(form1.review.question.text(), u"What now?");
    EXPECT_LE(desktop.now - begin, calm ? 0 : 500);
  }
  EXPECT_EQ(desktop.sleeps.size(), 50U);
}

}  // namespace
}  // namespace velmora::review
