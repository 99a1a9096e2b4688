#pragma once

#include "ui/controls.h"
#include "ui/timer.h"

namespace velmora::ui {

/// The controls of the preview player, which plays for every window.
struct PlayerPanel {
  PlayerPanel() { time.setText(u"00:00"); }

  Button play, pause, stop;
  Slider position;    ///< the knob's share of the track is the share of the file that was heard
  Label time;         ///< minutes and seconds of the position
  Timer Timer4{200};  ///< on while the player plays
};

}  // namespace velmora::ui
