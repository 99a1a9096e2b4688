#pragma once

#include <cstdint>
#include <memory>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::tags {

/// Puts `count` bytes 0 ahead of all that a song holds, and then writes `head` over the start of the result.
/// The new content is made whole in a file beside the song ("song.mp3" gets "songID3tagadd.tmp") that takes
/// the song's place in one step: whatever happens, the song is whole, old or new. Throws FileError.
void InsertZeroBytes(platform::Files& files, const Text& path, std::unique_ptr<platform::OpenFile> song,
                     std::uint64_t count, BytesView head);

}  // namespace velmora::tags
