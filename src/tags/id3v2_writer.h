#pragma once

#include <cstdint>

#include "platform/text.h"
#include "tags/id3v2_frames.h"
#include "tags/open_song.h"

namespace velmora::tags {

/// The frames as a tag of version 3 or 4, its size bytes still 0 and no padding behind it. Throws FileError
/// when a name has not four characters or a frame is too large for the version.
Bytes tagBytes(const FrameTable& frames, std::uint8_t version);

/// Puts the frames as the tag of a song, in the place of the one that `findTag` finds. Where they fit between
/// its start and its real end the file keeps its length; otherwise it grows there, to a tag of a multiple of
/// 2048 bytes. A tag that cannot be read stays as it is behind the new one. Throws FileError; the file is
/// then as it was.
void writeTag(OpenSong& song, const FrameTable& frames, std::uint8_t version);

}  // namespace velmora::tags
