#pragma once

#include "core/track_table.h"
#include "platform/text.h"

/// What the tags of a row say. The ID3v2 tag wins, where the file has one, even over a value that it leaves
/// empty; a value of nothing but blanks counts as none. What is returned as a view lives in the table.
namespace velmora::newmusic {

TextView TagGenre(const core::TrackTable& table, int row);
TextView TagAlbum(const core::TrackTable& table, int row);
TextView TagYear(const core::TrackTable& table, int row);
/// Album, two blanks, year, without blanks at the ends: the name of the album's folder in the base.
Text TagAlbumYear(const core::TrackTable& table, int row);

}  // namespace velmora::newmusic
