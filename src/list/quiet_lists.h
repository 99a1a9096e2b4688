#pragma once

#include <utility>

#include "core/track_table.h"

namespace velmora::list {

/// Keeps the click handlers of the lists quiet (`puniliste`) for as long as an object of this class lives.
class QuietLists {
 public:
  explicit QuietLists(core::TrackTable& table) : table_(table), before_(std::exchange(table.puniliste, 1)) {}
  ~QuietLists() { table_.puniliste = before_; }
  QuietLists(const QuietLists&) = delete;
  QuietLists& operator=(const QuietLists&) = delete;

 private:
  core::TrackTable& table_;
  int before_;
};

}  // namespace velmora::list
