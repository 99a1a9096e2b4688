#pragma once

#include "core/track_table.h"
#include "rows/artist_book.h"
#include "tags/tag_cache.h"

namespace velmora::list {

/// Finds the dash of rows that enter the list.
class DashFinder {
 public:
  DashFinder(core::TrackTable& table, const rows::ArtistBook& artists, tags::TagCache& tags);

  /// Sets the dash position of a row and derives its name parts. A name with two dashes is settled by the
  /// artist in the file's tags, which are read when they were not yet.
  void find(int row);

 private:
  /// Whether one of the row's tags names exactly this artist, capitals and blanks around aside.
  bool artistInTags(int row, TextView artist);

  core::TrackTable& table_;
  const rows::ArtistBook& artists_;
  tags::TagCache& tags_;
};

}  // namespace velmora::list
