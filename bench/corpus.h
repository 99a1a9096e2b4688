#pragma once

#include <cstdint>
#include <string>

namespace velmora::bench {

struct CorpusCounts {
  int songs = 0;
  int others = 0;  ///< files that are not music
};

/// Makes collections that are like real ones, and the same for the same seed: 80 % of the songs with an ID3v2
/// tag by other writers, 70 % with an ID3v1 tag, some KiB of sound each, other files among them. `folder` is
/// made when it is missing and should be empty. Throws std::system_error.

/// Music as it comes: albums in folders of their own, the rest in folders of some hundred downloads.
CorpusCounts makeNewMusic(const std::string& folder, int songs, std::uint64_t seed);
/// Music in which every name wants repair: all of it in small letters, each song with both tags, which say
/// what the name says, and with room in the ID3v2 tag.
CorpusCounts makeRepairMusic(const std::string& folder, int songs, std::uint64_t seed);
/// A base: Genre/Artist/Album-Year/file, well named. Shares artists with the new music of the same seed.
CorpusCounts makeBase(const std::string& folder, int songs, std::uint64_t seed);

/// Music that is ready to be filed: named "Artist - Title", with both tags. Every tenth album is by one
/// artist, `busyArtist`. Beside it lies a twentieth more in the folder `untagged`, without any tag.
CorpusCounts makeReadyMusic(const std::string& folder, int songs, std::uint64_t seed);
inline constexpr const char* busyArtist = "Various Arvola";
inline constexpr const char* untagged = "untagged";

struct BaseShape {
  int genres = 40;
  int artists = 4000;
  int albums = 10000;
  int songs = 100000;
};
/// A base for jobs that list it and open no file: its songs are empty.
CorpusCounts makeEmptyBase(const std::string& folder, const BaseShape& shape, std::uint64_t seed);

}  // namespace velmora::bench
