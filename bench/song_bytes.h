#pragma once

#include <string>

#include "bench/random.h"
#include "bench/song_names.h"

namespace velmora::bench {

/// A whole MP3 file of some KiB: frames of 128 kbit/s, and the tags that other programs would have written.
std::string songBytes(const Song& song, Random& random);
/// The same with both tags, which say just what the song is called. The ID3v2 tag has room to grow, and its
/// size is written as this program reads it.
std::string repairSongBytes(const Song& song, Random& random);

}  // namespace velmora::bench
