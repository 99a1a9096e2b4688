#pragma once

#include <cstdint>
#include <functional>
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
  /// Writes over the song in place, or behind its last byte. When that fails half way the old bytes are
  /// written back, and the song has its old length.
  void write(std::uint64_t offset, BytesView bytes);
  /// Takes all from `bytes` on away, in one step.
  void cutTo(std::uint64_t bytes);

  /// How a new content is made beside the song: "song.mp3" gets "songID3tagadd.tmp", or with `ending` that
  /// behind its whole name.
  struct Copying {
    Text ending;
    std::function<void()> afterBlock;  ///< after each 2,097,152 bytes
  };
  /// Puts `bytes` in the place of those from `from` up to `to`. The new content is made whole in a file
  /// beside the song that takes the song's place in one step: whatever happens, the song is whole, old or
  /// new. Fails when another program has changed the song since it was opened, which then stays as that
  /// program left it.
  void replacePart(std::uint64_t from, std::uint64_t to, BytesView bytes, const Copying& copying = {});
  void close();

 private:
  platform::OpenFile& open();
  Bytes oldBytes(std::uint64_t offset, std::size_t count);

  platform::Files& files_;
  Text path_;
  std::unique_ptr<platform::OpenFile> file_;
  std::unique_ptr<platform::OpenFile> reader_;  // where it can only be read
  bool alone_ = false;                          // no other program can take the open file
  platform::FileStamp stamp_;                   // of the song as it was opened, and as it was written since
  std::optional<SongBytes> bytes_;
};

}  // namespace velmora::tags
