#pragma once

#include <vector>

#include "platform/text.h"

/// The text that keeps selections and top rows of lists between two runs: fields, each ended by ":", of
/// numbers with a leading blank, each ended by ",". docs/formats.md gives the fields of each key.
namespace velmora::ui {

using ListState = std::vector<std::vector<int>>;

Text writeListState(const ListState& fields);
/// The fields of a stored text, `count` of them: missing ones are empty, further ones are left out. What is
/// no number is passed over.
ListState readListState(TextView text, std::size_t count);

}  // namespace velmora::ui
