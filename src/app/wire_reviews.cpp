#include "app/house.h"
#include "app/wiring.h"

namespace velmora::app {

namespace {

/// A handler that acts while the Processing Window is not held by a command or another window.
std::function<void()> whileFree(House& house, std::function<void()> run) {
  return [&house, run = std::move(run)] {
    if (house.windows.form1.enabled()) run();
  };
}

void wireButtons(House& house) {
  ui::ReviewPanel& panel = house.windows.form1.review;
  review::ReviewActions& actions = house.reviews.actions;
  panel.next.onClick = whileFree(house, [&actions] { actions.next(); });
  panel.previous.onClick = whileFree(house, [&actions] { actions.previous(); });
  panel.exit.onClick = whileFree(house, [&actions] { actions.exit(); });
  panel.stop.onClick = whileFree(house, [&actions] { actions.stop(); });
}

}  // namespace

void wireReviews(House& house) {
  ReviewRoom& room = house.reviews;
  room.stepWait.letCommandsRun = [&house](const std::function<void()>& wait) { house.work.wait(wait); };
  room.stepWait.programEnds = [&house] { return house.ending; };
  house.repair.replay.onFix = [&room](int row) { room.state.reviewRow = row; };
  wireButtons(house);
}

}  // namespace velmora::app
