#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

/// The ten bytes that a tag begins with.
struct TagHeader {
  static constexpr std::uint64_t bytes = 10;

  std::uint64_t start;  ///< offset of the "ID3"
  std::uint8_t version;
  std::uint8_t flags;
  /// Bytes behind the header, as published: seven bits in each size byte. Nothing where a byte has the
  /// eighth.
  std::optional<std::uint32_t> published;
  /// The size bytes as a plain number, header included: what this program wrote at first, and still writes
  /// where that does no harm.
  std::uint32_t plain;
  bool footer;  ///< ten bytes more stand behind a version 4 tag

  bool unsynchronised() const { return (flags & 0x80) != 0; }
  bool extended() const { return version > 2 && (flags & 0x40) != 0; }
  /// Whether the frames can be read at all: version 2, 3 or 4, and no compressed version 2.
  bool readable() const { return version >= 2 && version <= 4 && !(version == 2 && (flags & 0x40) != 0); }
  /// The end of the tag as its published size tells, which may lie beyond the end of the file.
  std::optional<std::uint64_t> publishedEnd() const;
};

/// The header that stands at this offset, if one does.
std::optional<TagHeader> tagHeaderAt(SongBytes& song, std::uint64_t start);

/// The number that bytes of seven bits each stand for; nothing where one has the eighth.
std::optional<std::uint32_t> sevenBitNumber(BytesView bytes);

}  // namespace velmora::tags
