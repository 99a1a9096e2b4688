#include "bench/corpus.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

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

}  // namespace velmora::bench
