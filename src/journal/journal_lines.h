#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"

/// The lines of the undo journal. A record stands between double quotes on a line of its own. It may hold
/// quotes and line breaks (the texts of a tag may), so it ends only where a quote and a line end are followed
/// by the quote of the next record or by the end of the file. What does not end so is torn and dropped, and
/// takes nothing below it along.
namespace velmora::journal::journal_lines {

/// The records in `bytes`, the oldest first.
std::vector<BytesView> split(BytesView bytes);
/// Goes through the records of a file from the newest to the oldest, reading no more than it needs, until
/// `visit` answers false. `offset` is where the line of the record begins, in bytes. The view lasts for that
/// call.
void visitFromEnd(platform::OpenFile& file,
                  const std::function<bool(BytesView record, std::uint64_t offset)>& visit);

}  // namespace velmora::journal::journal_lines
