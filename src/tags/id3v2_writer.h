#pragma once

#include "platform/text.h"
#include "tags/id3v2_frames.h"
#include "tags/open_song.h"

namespace velmora::tags {

/// The frames as a version 3 tag: header with size bytes still 0, frames with an encoding byte 0 ahead of
/// each body, four bytes 0 as the end. Identifiers that contain "ID3" are left out. Throws FileError when an
/// identifier has not four characters or a body was lost.
Bytes tagBytes(const FrameTable& frames);

/// Puts the frames as the tag of a song. Where the new tag is smaller than the size that the old one
/// declares, it goes over the old one and the file keeps its length; otherwise the file grows at its start,
/// to a tag size that is a multiple of 2048. Throws FileError; the file is then as it was, unless a write in
/// place failed half way.
void writeTag(OpenSong& song, const FrameTable& frames);

}  // namespace velmora::tags
