#pragma once

#include <utility>

#include "core/track_table.h"

namespace velmora::ui {

/// Keeps `puniliste` at a value for as long as an object of this class lives.
class ListNoise {
 public:
  ListNoise(const ListNoise&) = delete;
  ListNoise& operator=(const ListNoise&) = delete;

 protected:
  ListNoise(core::TrackTable& table, int puniliste)
      : table_(table), before_(std::exchange(table.puniliste, puniliste)) {}
  ~ListNoise() { table_.puniliste = before_; }

 private:
  core::TrackTable& table_;
  int before_;
};

/// The click handlers of the lists are quiet.
class QuietLists : public ListNoise {
 public:
  explicit QuietLists(core::TrackTable& table) : ListNoise(table, 1) {}
};

/// The click handlers act, though a command that refills lists is under way.
class LoudLists : public ListNoise {
 public:
  explicit LoudLists(core::TrackTable& table) : ListNoise(table, 0) {}
};

}  // namespace velmora::ui
