#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

/// A song whose tags are being written: opened for reading and writing when it is first needed, and kept open
/// from the reading of a tag to its writing. Other programs are kept off it for as long, unless one of them
/// was there first. Operations throw FileError.
class OpenSong {
 public:
  OpenSong(platform::Files& files, Text path);

  const Text& path() const { return path_; }
  /// Whether it is open, and so can be written.
  bool isOpen() const { return file_ != nullptr; }
  /// Whether another program holds the song. While this one has it open, no other can take it. Never throws.
  bool busy();
  /// What the song holds now, of a song that can be written.
  SongBytes& bytes();
  /// The same, also of a song that can only be read.
  SongBytes& bytesToRead();
  /// Writes over the song in place.
  void write(std::uint64_t offset, BytesView bytes);
  /// Puts `count` bytes 0 ahead of all that the song holds, and then writes `head` over the start of the
  /// result. The new content is made whole in a file beside the song ("song.mp3" gets "songID3tagadd.tmp")
  /// that takes the song's place in one step: whatever happens, the song is whole, old or new.
  void InsertZeroBytes(std::uint64_t count, BytesView head);
  void close();

 private:
  platform::OpenFile& open();

  platform::Files& files_;
  Text path_;
  std::unique_ptr<platform::OpenFile> file_;
  std::unique_ptr<platform::OpenFile> reader_;  // where it can only be read
  bool alone_ = false;                          // no other program can take the open file
  std::optional<SongBytes> bytes_;
};

}  // namespace velmora::tags
