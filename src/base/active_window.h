#pragma once

#include <utility>

#include "core/track_table.h"

namespace velmora::base {

/// Tells the handlers that another window is at work (`aktivniprozor`) for as long as an object of this class
/// lives.
class ActiveWindow {
 public:
  ActiveWindow(core::TrackTable& table, core::WindowAtWork window)
      : table_(table), before_(std::exchange(table.aktivniprozor, window)) {}
  ~ActiveWindow() { table_.aktivniprozor = before_; }
  ActiveWindow(const ActiveWindow&) = delete;
  ActiveWindow& operator=(const ActiveWindow&) = delete;

 private:
  core::TrackTable& table_;
  core::WindowAtWork before_;
};

}  // namespace velmora::base
