#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/text.h"
#include "tags/song_bytes.h"

/// How an ID3v2 tag is found and taken apart. Both the tag class, which keeps every frame, and the tag cache,
/// which wants six of them, read through here.
namespace velmora::tags {

/// Offset of the version byte behind the first "ID3" that stands ahead of the audio, or nothing. The audio
/// starts at the first bytes FF FB; within one block of 4096 bytes a marker wins over a pair that stands
/// before it.
std::optional<std::uint64_t> FindID3Position(SongBytes& song);

/// Size field of the tag whose version byte lies at `position`: a plain 32-bit number, whatever other
/// programs mean by it. 0 where the file ends within the header.
std::uint32_t tagSize(SongBytes& song, std::uint64_t position);

/// Walks the frames of a tag of version 2, 3 or 4. A tag of any other version has none.
class FrameReader {
 public:
  struct Found {
    Bytes name;            ///< in the version 3 form; empty for a version 2 name that has none
    std::uint64_t offset;  ///< of the body
    std::size_t length;    ///< of the body, within the file
  };

  /// `position` is the offset of the version byte.
  FrameReader(SongBytes& song, std::uint64_t position);

  std::uint8_t version() const { return version_; }
  /// The next frame in the tag, or nothing at the end of those that are read.
  std::optional<Found> next();

 private:
  struct Header;
  std::optional<Header> readHeader();

  SongBytes& song_;
  std::uint8_t version_ = 0;
  std::uint32_t size_;
  std::uint64_t at_;
  std::uint64_t total_ = 0;
  bool ended_ = false;
};

/// A body under 300 bytes without all that is no printable ASCII; a longer one as it is.
Bytes CleanFrameText(BytesView body);
/// The same as text.
Text frameText(BytesView body);

/// What a TCON body says: "(17)" is code 17 and its name, "(17)Rock and Roll" the code and that name,
/// "Rock" a name alone.
struct GenreText {
  std::optional<std::uint8_t> code;
  Text name;
};
GenreText parseGenre(TextView body);

}  // namespace velmora::tags
