#pragma once

#include "platform/text.h"

namespace velmora::core {

/// Whether a name comes before another one as people order them: numbers by their value ("2" before "10"),
/// letters without regard to capitals. Names that are equal in this sense keep an order of their own, so that
/// every sort gives the same list.
bool naturalLess(TextView left, TextView right);

}  // namespace velmora::core
