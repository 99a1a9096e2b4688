#pragma once

#include <cstdint>
#include <optional>

#include "core/track_table.h"
#include "platform/files.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

/// Fills the tag columns of rows. A row is read once and again only after a write (`procitan`); there are no
/// time stamps, so a file that another program changed keeps its old values.
class TagCache {
 public:
  TagCache(core::TrackTable& table, platform::Files& files) : table_(table), files_(files) {}

  /// Reads both tags of `path` into the columns of `row` with one opening of the file, unless the row was
  /// read. Bodies of frames that no column takes are not read. A file of no bytes is not read, and one that
  /// cannot be read leaves the columns as they were. Returns whether the columns hold what the file says.
  /// `bytes`, when given, receives the length of the file if it was opened.
  bool read(const Text& path, int row, std::optional<std::uint64_t>* bytes = nullptr);
  /// The same for a file that is open already.
  bool read(SongBytes& song, int row);
  /// The same also for a row that was read already: another program may have changed the file since. Throws
  /// FileError when it cannot be read, and the columns are then as they were.
  bool readAnew(SongBytes& song, int row);

 private:
  core::TrackTable& table_;
  platform::Files& files_;
};

}  // namespace velmora::tags
