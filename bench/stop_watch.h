#pragma once

#include <chrono>
#include <ctime>

namespace velmora::bench {

/// What passed since it was made.
class StopWatch {
 public:
  double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - began_).count();
  }
  /// Seconds that the processor worked for this process, in it and in the system. They are nearly the same
  /// however busy the machine is with others.
  double processorSeconds() const { return processorTime() - processorBegan_; }

 private:
  static double processorTime() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
  }

  std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
  double processorBegan_ = processorTime();
};

}  // namespace velmora::bench
