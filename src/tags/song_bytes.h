#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::tags {

/// The bytes of an open song for its readers: read ahead in chunks that grow while reading goes on, so that a
/// song whose tag lies in its first block costs one call, and one that must be searched through costs few.
/// Nothing outside the file can be read. All operations may throw FileError.
class SongBytes {
 public:
  /// `file` must outlive this object.
  explicit SongBytes(platform::OpenFile& file);
  SongBytes(const SongBytes&) = delete;
  SongBytes& operator=(const SongBytes&) = delete;

  /// Length of the file in bytes when this object was made.
  std::uint64_t size() const { return size_; }
  /// `count` bytes from `offset`, fewer where the file ends. Good until the next call.
  BytesView at(std::uint64_t offset, std::size_t count);
  /// The last `count` bytes, 128 at most; fewer where the file is shorter. Good until the next call.
  BytesView end(std::size_t count);
  /// Another number for each object: what was read through one is what the song holds as long as this stays.
  std::uint64_t serial() const { return serial_; }
  /// Follows a write to the file that lay within it: what was read before is right again.
  void wrote(std::uint64_t offset, BytesView bytes);

 private:
  static constexpr std::size_t firstChunk = 4096;

  struct Stretch {
    BytesView bytes;
    std::uint64_t start = 0;
    bool holds(std::uint64_t offset, std::size_t count) const;
  };
  static constexpr std::size_t endBytes = 128;

  const Stretch* find(std::uint64_t offset, std::size_t count) const;
  const Stretch& readHead();
  const Stretch& readAhead(std::uint64_t offset, std::size_t count);

  static std::uint64_t nextSerial();

  platform::OpenFile& file_;
  std::uint64_t size_;
  std::uint64_t serial_ = nextSerial();
  Stretch head_;  // the first block is kept, since all readers begin there
  Stretch ahead_;
  Stretch end_;  // kept, too, since the writer of the tag that lies there looks at it once more
  // The bytes of the three stretches. Most songs are read no further than the first block, so it lies in the
  // object: to allocate and free a block of that size for each song costs more than to read it.
  std::array<char, firstChunk> headBlock_;
  std::array<char, endBytes> endBlock_;
  Bytes aheadBlock_;
  std::size_t chunk_ = firstChunk;
};

/// Number of 3 or 4 bytes, the most significant first.
std::uint32_t bigEndian(BytesView bytes);

}  // namespace velmora::tags
