#include "app/shared_screen.h"

#include <algorithm>

namespace velmora::app {

namespace {

constexpr int leastRoom = 4320;  // twips: three inches

}  // namespace

void SharedScreen::share() {
  if (shared_) return;
  shared_ = true;
  placement_ = base_.placement();
  state_ = base_.state();
  const platform::ScreenRoom room = desktop_.screenRoom();
  if (room.height <= 0) return;

  const int titleBar = base_.frameHeight();
  ui::Placement base = placement_;
  const bool fills = state_ == ui::WindowState::Maximised || base.height <= 0;
  if (fills) base = {room.left, room.top, room.width, room.height - titleBar};
  const int wanted = std::max(leastRoom, room.height / 2 - titleBar);
  const int lowest = room.top + room.height - wanted - titleBar;  // where the upper window has to end
  if (base.top + base.height + titleBar > lowest) {
    base.top = std::max(room.top, lowest - base.height - titleBar);
    base.height = std::min(base.height, lowest - base.top - titleBar);
  }
  base_.setState(ui::WindowState::Normal);
  base_.setPlacement(base);
  const int top = base.top + base.height + titleBar;
  newMusic_.setPlacement({base.left, top, base.width, room.top + room.height - top - titleBar});
}

void SharedScreen::giveBack() {
  if (!shared_) return;
  shared_ = false;
  // A maximised window has not shown its own width; any other may have been moved aside meanwhile.
  ui::Placement place = state_ == ui::WindowState::Maximised ? placement_ : base_.placement();
  place.top = placement_.top;
  place.height = placement_.height;
  base_.setPlacement(place);
  base_.setState(state_);
}

}  // namespace velmora::app
