#pragma once

namespace velmora::newmusic {

/// While an object of this class lives, the clicks of a window's lists that `held` belongs to do nothing at
/// all: the window's own flag, for changes whose follow-on work the caller does itself.
class ClickHold {
 public:
  explicit ClickHold(int& held) : held_(held) { ++held_; }
  ~ClickHold() { --held_; }
  ClickHold(const ClickHold&) = delete;
  ClickHold& operator=(const ClickHold&) = delete;

 private:
  int& held_;
};

}  // namespace velmora::newmusic
