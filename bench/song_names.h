#pragma once

#include <string>
#include <vector>

#include "bench/random.h"

namespace velmora::bench {

/// What a song is called where it is told right: in its tags. UTF-8.
struct Song {
  std::string artist;
  std::string title;
  std::string album;
  std::string genre;
  int year = 0;
  int track = 0;  ///< 0 when it is not known
};

/// One album of one artist, as bought or copied together.
struct Album {
  std::string artist;
  std::string title;
  std::string genre;
  int year = 0;
  std::vector<std::string> songs;
};

/// Invents artists, albums and songs. Artists come back with other albums, as in a real collection.
class AlbumMaker {
 public:
  explicit AlbumMaker(std::uint64_t seed) : random_(seed) {}
  Album next();

 private:
  std::string word();
  std::string phrase(int mostWords);
  std::string newArtist();

  Random random_;
  struct Artist {
    std::string name;
    std::string genre;
  };
  std::vector<Artist> artists_;
};

/// Name of a song's file, with its extension, as people write them: well formed most of the time, but also
/// with numbers, underscores, %20, two dashes, none, national letters, and bytes that are not UTF-8. Never
/// holds a separator, a double quote or a line break.
std::string songFileName(const Song& song, Random& random);
/// Name of a file that lies beside music and is none.
std::string otherFileName(Random& random);
/// With A to Z made small.
std::string smallLetters(std::string text);
/// The text less what a file name cannot hold.
std::string asFileName(const std::string& text);

}  // namespace velmora::bench
