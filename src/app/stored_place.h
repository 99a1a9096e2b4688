#pragma once

#include <algorithm>

#include "core/number_text.h"

namespace velmora::app {

/// A stored length or place in twips, held within what any screen can need, so that arithmetic on it is safe.
inline int twips(TextView stored) {
  constexpr int farthest = 1'000'000;
  return std::clamp(core::intValue(stored), -farthest, farthest);
}

}  // namespace velmora::app
