#pragma once

#include <functional>

#include "core/track_table.h"
#include "platform/file_error.h"
#include "tags/open_song.h"
#include "ui/failures.h"

namespace velmora::tags {

/// What a write of a tag came to; the numbers are part of the contract of `Update`.
enum class UpdateResult { Done = 0, Abort = 1, Ignore = 2 };

/// What a tag needs besides its file to report that it could not be written.
struct UpdateContext {
  ui::Failures& failures;
  const core::TrackTable& table;  ///< the dialog names the path of its current row
};

/// Runs `write` and, after each failure, closes the song and asks: "Error while Update ID3 V1 " and its like,
/// with Abort, Retry and Ignore. `version` is "V1" or "V2". Once the user has chosen Retry, only Abort is
/// told from success: an Ignore after it counts as Done.
UpdateResult updateWithDialog(const UpdateContext& context, TextView version, OpenSong& song,
                              const std::function<void()>& write);

/// What a tag writer throws for a file that holds nothing to tag.
platform::FileError notAValidMP3File(const Text& path);

}  // namespace velmora::tags
