#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Text of names, tags, settings and windows: UTF-16 code units, so that positions and lengths count
/// characters the way the rules on names do. A byte of a file name that is no valid UTF-8 is held as
/// U+DC80 to U+DCFF (see core/text.h).
using Text = std::u16string;
using TextView = std::u16string_view;

/// Raw bytes as they stand in a file.
using Bytes = std::string;
using BytesView = std::string_view;

}  // namespace velmora
