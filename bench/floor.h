#pragma once

#include <string>

namespace velmora::bench {

struct FloorTotals {
  int files = 0;
  long long bytes = 0;  ///< read
};

/// The yardstick of the list jobs: what a collection costs with nothing but the system calls that no program
/// can do without. Lists the tree, opens each file, reads 4 KiB at its start and 128 bytes at its end.
FloorTotals readFloor(const std::string& folder);

}  // namespace velmora::bench
