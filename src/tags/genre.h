#pragma once

#include <optional>

#include "platform/text.h"

namespace velmora::tags {

/// Name of a genre code, 0 to 255; empty for a code without a name.
const Text& GenreName(int code);
/// First code from 1 up whose name equals `name` exactly. The search leaves out 0 on purpose, so "Blues" is
/// never found; the empty name finds the first code without one.
std::optional<int> genreCode(TextView name);

}  // namespace velmora::tags
