#pragma once

#include <cstddef>
#include <cstdint>

namespace velmora::bench {

/// Numbers that are the same on every machine for the same seed (SplitMix64).
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }
  /// 0 to limit - 1.
  int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }
  /// low to high, both included.
  int between(int low, int high) { return low + below(high - low + 1); }
  bool chance(int percent) { return below(100) < percent; }
  template <typename List>
  const auto& pick(const List& list) {
    return list[next() % std::size(list)];
  }

 private:
  std::uint64_t state_;
};

}  // namespace velmora::bench
