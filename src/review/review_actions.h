#pragma once

#include "core/track_table.h"
#include "review/review_state.h"
#include "ui/form1.h"

namespace velmora::review {

/// The buttons that both walking reviews share.
class ReviewActions {
 public:
  ReviewActions(core::TrackTable& table, ui::Form1& form1, ReviewState& state)
      : table_(table), form1_(form1), state_(state) {}

  /// Next: leaves the file as it is.
  void next();
  /// Prev.: goes back to the stop before, and takes back what was done since.
  void previous();
  /// Exit From Step 3: ends the walk.
  void exit();
  /// Stop: the walk halts at the next file.
  void stop() { state_.stopPressed = state_.running && !state_.waiting; }
  /// Undo last operation is done. At a stop the walk takes the present row again.
  void undone();

 private:
  core::TrackTable& table_;
  ui::Form1& form1_;
  ReviewState& state_;
};

}  // namespace velmora::review
