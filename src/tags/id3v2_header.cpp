#include "tags/id3v2_header.h"

namespace velmora::tags {

std::optional<std::uint32_t> sevenBitNumber(BytesView bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes) {
    if ((byte & 0x80) != 0) return {};
    number = number << 7 | static_cast<unsigned char>(byte);
  }
  return number;
}

std::optional<TagHeader> tagHeaderAt(SongBytes& song, std::uint64_t start) {
  const BytesView bytes = song.at(start, TagHeader::bytes);
  if (bytes.size() < TagHeader::bytes || !bytes.starts_with("ID3")) return {};
  constexpr std::size_t sizeOffset = 6;
  const BytesView size = bytes.substr(sizeOffset);
  TagHeader tag{start,
                static_cast<std::uint8_t>(bytes[3]),
                static_cast<std::uint8_t>(bytes[5]),
                sevenBitNumber(size),
                bigEndian(size),
                false};
  if (tag.version == 4 && (tag.flags & 0x10) != 0 && tag.published)
    tag.footer = song.at(*tag.publishedEnd(), 3) == "3DI";
  return tag;
}

std::optional<std::uint64_t> TagHeader::publishedEnd() const {
  if (!published) return {};
  return start + bytes + *published + (footer ? bytes : 0);
}

}  // namespace velmora::tags
