#pragma once

#include <functional>

namespace velmora::app {

/// What starting, ending and changing windows raise for the commands concerned. An event that nobody handles
/// does nothing.
struct Events {
  // A review that the last run left is to go on.
  std::function<void()> onResumeArtistList;
  std::function<void()> onResumeCheckFix;
  std::function<void()> onResumeDuplicates;
  /// The user leaves the Processing Window in the middle of a review: Exit From Step 3.
  std::function<void()> onExitReview;
};

inline void raise(const std::function<void()>& event) {
  if (event) event();
}

}  // namespace velmora::app
