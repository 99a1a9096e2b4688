#include "bench/corpus.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <unordered_set>
#include <vector>

#include "bench/random.h"
#include "bench/song_bytes.h"
#include "bench/song_names.h"

namespace velmora::bench {
namespace {

constexpr int downloadsPerFolder = 200;

/// Writes a new file; answers false when the name is taken.
bool writeNew(const std::string& path, const std::string& bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (file < 0) {
    if (errno == EEXIST) return false;
    throw std::system_error(errno, std::generic_category(), path);
  }
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = write(file, bytes.data() + done, bytes.size() - done);
    if (written < 0) {
      const int error = errno;
      close(file);
      throw std::system_error(error, std::generic_category(), path);
    }
    done += static_cast<std::size_t>(written);
  }
  close(file);
  return true;
}

/// Puts a file into a folder, with a number in its name where another has it already.
void place(const std::string& folder, const std::string& name, const std::string& bytes) {
  std::string path = folder + "/" + name;
  for (int copy = 2; !writeNew(path, bytes); ++copy) {
    const std::size_t dot = name.rfind('.');
    path = folder + "/" + name.substr(0, dot) + " (" + std::to_string(copy) + ")" + name.substr(dot);
  }
}

Song songOf(const Album& album, std::size_t index) {
  return {album.artist, album.songs[index], album.title,
          album.genre,  album.year,         static_cast<int>(index) + 1};
}

std::string albumFolder(const Album& album, Random& random) {
  const std::string year = std::to_string(album.year);
  switch (random.below(4)) {
    case 0:
      return asFileName(album.artist) + "/" + asFileName(album.title);
    case 1:
      return asFileName(album.artist + " - " + album.title);
    case 2:
      return asFileName(album.artist + " - " + album.title) + " (" + year + ")";
    default:
      return asFileName(album.artist) + "/" + year + " " + asFileName(album.title);
  }
}

constexpr std::array<std::string_view, 8> genreWords = {"Rock",  "Pop",   "Jazz",  "Folk",
                                                        "Metal", "House", "Blues", "Techno"};
constexpr std::array<std::string_view, 5> genreKinds = {"", "Acid ", "Classic ", "Hard ", "Slow "};

/// `genres` names, all different up to forty of them.
std::string genreName(int genre) {
  const auto number = static_cast<std::size_t>(genre);
  const std::size_t kind = number / genreWords.size() % genreKinds.size();
  return std::string(genreKinds[kind]) + std::string(genreWords[number % genreWords.size()]);
}

}  // namespace

CorpusCounts makeNewMusic(const std::string& folder, int songs, std::uint64_t seed) {
  CorpusCounts counts;
  Random random(seed ^ 0x6E6577U);
  AlbumMaker albums(seed);
  int downloads = 0;
  while (counts.songs < songs) {
    const Album album = albums.next();
    const bool scattered = random.chance(30);
    std::string into = folder + "/";
    if (scattered)
      into += "downloads/" + std::to_string(downloads / downloadsPerFolder + 1);
    else
      into += albumFolder(album, random);
    std::filesystem::create_directories(into);
    for (std::size_t i = 0; i < album.songs.size() && counts.songs < songs; ++i) {
      const Song song = songOf(album, i);
      place(into, songFileName(song, random), songBytes(song, random));
      ++counts.songs;
    }
    if (scattered) downloads += static_cast<int>(album.songs.size());
    for (int i = random.below(3); i > 0; --i) {
      place(into, otherFileName(random), std::string(static_cast<std::size_t>(random.between(0, 4000)), 'x'));
      ++counts.others;
    }
  }
  return counts;
}

CorpusCounts makeRepairMusic(const std::string& folder, int songs, std::uint64_t seed) {
  CorpusCounts counts;
  Random random(seed ^ 0x666978U);
  AlbumMaker albums(seed);
  while (counts.songs < songs) {
    const Album album = albums.next();
    const std::string into = folder + "/" + asFileName(album.artist + " - " + album.title);
    std::filesystem::create_directories(into);
    for (std::size_t i = 0; i < album.songs.size() && counts.songs < songs; ++i) {
      Song song = songOf(album, i);
      song.artist = smallLetters(asFileName(song.artist));
      song.title = smallLetters(asFileName(song.title));
      place(into, song.artist + " - " + song.title + ".mp3", repairSongBytes(song, random));
      ++counts.songs;
    }
  }
  return counts;
}

CorpusCounts makeBase(const std::string& folder, int songs, std::uint64_t seed) {
  CorpusCounts counts;
  Random random(seed ^ 0x62617365U);
  AlbumMaker albums(seed);
  while (counts.songs < songs) {
    const Album album = albums.next();
    const std::string into = folder + "/" + asFileName(album.genre) + "/" + asFileName(album.artist) + "/" +
                             asFileName(album.title) + "-" + std::to_string(album.year);
    std::filesystem::create_directories(into);
    for (std::size_t i = 0; i < album.songs.size() && counts.songs < songs; ++i) {
      const Song song = songOf(album, i);
      place(into, asFileName(song.artist + " - " + song.title) + ".mp3", songBytes(song, random));
      ++counts.songs;
    }
  }
  return counts;
}

CorpusCounts makeReadyMusic(const std::string& folder, int songs, std::uint64_t seed) {
  CorpusCounts counts;
  Random random(seed ^ 0x726479U);
  AlbumMaker albums(seed);
  const auto put = [&counts](const std::string& into, const Song& song, const std::string& bytes) {
    place(into, asFileName(song.artist + " - " + song.title) + ".mp3", bytes);
    ++counts.songs;
  };
  for (int number = 0; counts.songs < songs; ++number) {
    Album album = albums.next();
    if (number % 10 == 0) album.artist = busyArtist;
    const std::string into = folder + "/" + asFileName(album.artist + " - " + album.title);
    std::filesystem::create_directories(into);
    for (std::size_t i = 0; i < album.songs.size() && counts.songs < songs; ++i) {
      const Song song = songOf(album, i);
      put(into, song, repairSongBytes(song, random));
    }
  }
  const std::string apart = folder + "/" + untagged;
  std::filesystem::create_directories(apart);
  const int all = songs + songs / 20;
  while (counts.songs < all) {
    const Album album = albums.next();
    for (std::size_t i = 0; i < album.songs.size() && counts.songs < all; ++i)
      put(apart, songOf(album, i), std::string(4000, '\0'));
  }
  return counts;
}

CorpusCounts makeEmptyBase(const std::string& folder, const BaseShape& shape, std::uint64_t seed) {
  CorpusCounts counts;
  AlbumMaker albums(seed);
  std::vector<std::string> artists;
  std::unordered_set<std::string> names;
  while (static_cast<int>(artists.size()) < shape.artists) {
    std::string artist = asFileName(albums.next().artist);
    if (!names.insert(artist).second) continue;
    artists.push_back(genreName(static_cast<int>(artists.size()) % shape.genres) + "/" + artist);
  }
  const int songsPerAlbum = shape.songs / shape.albums;
  for (int number = 0; number < shape.albums; ++number) {
    const Album album = albums.next();
    const std::string& artist = artists[static_cast<std::size_t>(number % shape.artists)];
    const std::string into = folder + "/" + artist + "/" + asFileName(album.title) + " " +
                             std::to_string(number) + "-" + std::to_string(album.year);
    std::filesystem::create_directories(into);
    const std::string name = artist.substr(artist.find('/') + 1) + " - ";
    for (int i = 0; i < songsPerAlbum; ++i, ++counts.songs) {
      const std::string& title = album.songs[static_cast<std::size_t>(i) % album.songs.size()];
      place(into, name + asFileName(title) + ".mp3", "");
    }
  }
  return counts;
}

}  // namespace velmora::bench
