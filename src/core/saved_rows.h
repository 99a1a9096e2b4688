#pragma once

#include <optional>

#include "core/track_table.h"
#include "platform/text.h"

namespace velmora::core {

/// The number that a stored count holds; nothing for one that is missing, torn or below 0.
std::optional<int> storedCount(TextView text);

/// How many rows at the end of the table are the copy of the Music Base list: found by `bazaniz`, of which
/// some rows may have been lost, and by the folder of the base where that list is older than the rows.
int baseRowsAtEnd(const TrackTable& table, TextView baseFolder);

}  // namespace velmora::core
