#pragma once

#include "core/track_table.h"
#include "platform/files.h"

namespace velmora::tags {

/// Fills the tag columns of rows. A row is read once and again only after a write (`procitan`).
class TagCache {
 public:
  TagCache(core::TrackTable& table, platform::Files& files);

  /// Reads both tags of `path` into the columns of `row` with one opening of the file, unless the row was
  /// read. A file of no bytes is not read. A file that cannot be opened leaves the columns as they were.
  void read(const Text& path, int row);

 private:
  core::TrackTable& table_;
  platform::Files& files_;
};

}  // namespace velmora::tags
