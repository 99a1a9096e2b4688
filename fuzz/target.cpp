#include "fuzz/target.h"

#include <cstdio>
#include <cstdlib>

namespace velmora::fuzz {

std::vector<Target>& targets() {
  static std::vector<Target> all;
  return all;
}

void require(bool holds, const char* message) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", message);
  std::abort();
}

}  // namespace velmora::fuzz
