#pragma once

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

  /// Length of the file in bytes when this object was made.
  std::uint64_t size() const { return size_; }
  /// `count` bytes from `offset`, fewer where the file ends. Good until the next call.
  BytesView at(std::uint64_t offset, std::size_t count);
  /// The same into `into`, without reading ahead. Returns the bytes got.
  std::size_t copy(std::uint64_t offset, std::span<char> into);

 private:
  struct Stretch {
    Bytes bytes;
    std::uint64_t start = 0;
    bool holds(std::uint64_t offset, std::size_t count) const;
  };
  const Stretch* find(std::uint64_t offset, std::size_t count) const;

  platform::OpenFile& file_;
  std::uint64_t size_;
  Stretch head_;  // the first block stays, since all readers begin there
  Stretch ahead_;
  std::size_t chunk_;
};

/// Number of 3 or 4 bytes, the most significant first.
std::uint32_t bigEndian(BytesView bytes);

}  // namespace velmora::tags
