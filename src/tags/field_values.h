#pragma once

#include <optional>

#include "platform/text.h"

namespace velmora::tags {

/// What a command puts into a tag. A field without a value keeps what the file holds; an empty text takes the
/// field away.
struct FieldValues {
  std::optional<Text> title{}, artist{}, album{}, year{}, track{}, genre{};
};

/// The tags that a write goes to.
struct WhichTags {
  bool id3v1 = false;
  bool id3v2 = false;
};

}  // namespace velmora::tags
