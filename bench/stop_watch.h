#pragma once

#include <chrono>

namespace velmora::bench {

/// Seconds since it was made.
class StopWatch {
 public:
  double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - began_).count();
  }

 private:
  std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};

}  // namespace velmora::bench
