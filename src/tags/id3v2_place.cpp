#include "tags/id3v2_place.h"

#include <algorithm>
#include <array>

namespace velmora::tags {

namespace {

constexpr std::size_t blockBytes = 4096;
constexpr std::uint64_t ownSizeStep = 2048;  // every size that this program chose is a multiple
constexpr std::size_t id3v1Bytes = 128;

/// Whether a marker within a file is a tag: known flags alone, and a frame or padding behind the header.
bool plausible(SongBytes& song, const TagHeader& tag) {
  constexpr std::array<int, 3> unknownFlags = {0x3F, 0x1F, 0x0F};
  if (!tag.readable() || (tag.flags & unknownFlags[tag.version - 2U]) != 0) return false;
  if (tag.extended() || tag.unsynchronised()) return tag.published.has_value();
  const BytesView first = song.at(tag.start + TagHeader::bytes, TagHeader::bytes);
  if (isFrameName(first.substr(0, tag.version == 2 ? 3 : 4)))
    return framesEnd(song, tag, song.size()) > tag.start + TagHeader::bytes;
  return first.size() == TagHeader::bytes && first.find_first_not_of('\0') == BytesView::npos;
}

enum class Evidence { None, Weak, Strong };

bool tagBehind(BytesView bytes) {
  return bytes.starts_with("APETAGEX") || bytes.starts_with("LYRICSBEGIN");
}

/// How sure it is that what is no part of the tag begins at this offset.
Evidence evidenceAt(SongBytes& song, std::uint64_t offset) {
  const std::uint64_t size = song.size();
  if (offset > size) return Evidence::None;
  if (offset == size) return Evidence::Strong;
  const BytesView bytes = song.at(offset, 16);
  if (tagBehind(bytes) || (bytes.starts_with("TAG") && size - offset == id3v1Bytes)) return Evidence::Strong;
  if (bytes.starts_with("ID3")) {
    const auto next = tagHeaderAt(song, offset);
    return next && next->readable() && next->published ? Evidence::Strong : Evidence::None;
  }
  if (bytes.size() < 4) return Evidence::None;
  constexpr std::uint32_t sameInAllFrames = 0xFFFE0C00;  // sync, version, layer, sampling rate
  const std::uint32_t header = bigEndian(bytes.substr(0, 4));
  const std::size_t length = mpegFrameBytes(header);
  if (length == 0) return Evidence::None;
  if (offset + length == size) return Evidence::Strong;
  const BytesView next = song.at(offset + length, 16);
  if (tagBehind(next) || next.starts_with("TAG")) return Evidence::Strong;
  const bool follows = next.size() >= 4 && mpegFrameBytes(bigEndian(next.substr(0, 4))) != 0 &&
                       ((bigEndian(next.substr(0, 4)) ^ header) & sameInAllFrames) == 0;
  return follows ? Evidence::Strong : Evidence::Weak;
}

/// Offset of the first byte other than 0 from `offset` on, `to` at most.
std::uint64_t zerosEnd(SongBytes& song, std::uint64_t offset, std::uint64_t to) {
  while (offset < to) {
    const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(blockBytes, to - offset));
    const BytesView bytes = song.at(offset, count);
    if (const auto found = bytes.find_first_not_of('\0'); found != BytesView::npos) return offset + found;
    if (bytes.empty()) return offset;
    offset += bytes.size();
  }
  return to;
}

/// The end where nothing proves any of the sizes.
std::uint64_t unprovenEnd(SongBytes& song, const TagHeader& tag, std::uint64_t plainEnd) {
  const auto published = tag.publishedEnd();
  if (tag.unsynchronised() && published && *published <= song.size()) return *published;
  const std::uint64_t frames = framesEnd(song, tag, song.size());
  const bool own = tag.version == 3 && tag.flags == 0 && tag.plain % ownSizeStep == 0;
  const std::uint64_t zeros = zerosEnd(song, frames, song.size());
  if (own && plainEnd <= song.size() && frames <= plainEnd && zeros >= plainEnd) return plainEnd;
  if (published && *published <= song.size() && frames <= *published) return *published;
  // A size that reaches beyond the file, or less far than the frames: what follows them decides.
  if (evidenceAt(song, zeros) == Evidence::Strong) return zeros;
  return std::max(frames, std::min(plainEnd, zeros));
}

}  // namespace

std::size_t mpegFrameBytes(std::uint32_t header) {
  // Kilobits by bit rate index: layers 1, 2, 3 of MPEG-1, then layer 1 and layers 2 and 3 of MPEG-2.
  static constexpr std::array<std::array<std::uint16_t, 15>, 5> rates = {
      {{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
       {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
       {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
       {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
       {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}}};
  static constexpr std::array<std::uint32_t, 3> frequencies = {44100, 48000, 32000};
  const std::uint32_t version = header >> 19 & 3;  // 0 MPEG-2.5, 2 MPEG-2, 3 MPEG-1
  const std::uint32_t layer = 4 - (header >> 17 & 3);
  const std::uint32_t rate = header >> 12 & 15;
  const std::uint32_t frequency = header >> 10 & 3;
  if (header >> 21 != 0x7FF || version == 1 || layer == 4 || rate == 15 || frequency == 3) return 0;
  const bool mpeg1 = version == 3;
  const std::size_t row = mpeg1 ? layer - 1 : (layer == 1 ? 3 : 4);
  const std::uint32_t bits = rates[row][rate] * 1000U;
  const std::uint32_t hertz = frequencies[frequency] >> (mpeg1 ? 0 : (version == 2 ? 1 : 2));
  const std::uint32_t padding = header >> 9 & 1;
  if (layer == 1) return (12 * bits / hertz + padding) * 4 * (bits != 0 ? 1 : 0);
  return bits == 0 ? 0 : (layer == 3 && !mpeg1 ? 72 : 144) * bits / hertz + padding;
}

std::optional<std::uint64_t> FindID3Position(SongBytes& song) {
  for (std::uint64_t start = 0; start < song.size(); start += blockBytes - 3) {
    const bool last = start + blockBytes >= song.size();
    // The last block leaves out the file's last byte.
    const auto length = last ? static_cast<std::size_t>(song.size() - start - 1) : blockBytes;
    const BytesView block = song.at(start, length);
    if (const auto found = block.find("ID3"); found != BytesView::npos) return start + found + 3;
    if (last || block.find("\xFF\xFB") != BytesView::npos) return {};
  }
  return {};
}

std::optional<TagHeader> findTag(SongBytes& song) {
  const auto position = FindID3Position(song);
  if (!position) return {};
  const auto tag = tagHeaderAt(song, *position - 3);
  if (!tag || tag->start == 0 || plausible(song, *tag)) return tag;
  return {};
}

std::uint64_t tagEnd(SongBytes& song, const TagHeader& tag) {
  const std::uint64_t plainEnd = tag.start + tag.plain;
  const std::uint64_t behindPlain = plainEnd + TagHeader::bytes;  // of writers that left the header out
  const auto published = tag.publishedEnd();
  const Evidence atPublished = published ? evidenceAt(song, *published) : Evidence::None;
  if (atPublished == Evidence::Strong || published == behindPlain) return std::min(*published, song.size());
  const auto reachesBehindHeader = tag.plain >= TagHeader::bytes;
  const Evidence atPlain = reachesBehindHeader ? evidenceAt(song, plainEnd) : Evidence::None;
  if (atPlain == Evidence::Strong) return plainEnd;
  if (evidenceAt(song, behindPlain) == Evidence::Strong) return behindPlain;
  if (atPublished == Evidence::Weak) return *published;
  if (atPlain == Evidence::Weak) return plainEnd;
  return std::max(unprovenEnd(song, tag, plainEnd), std::min(tag.start + TagHeader::bytes, song.size()));
}

FrameReader framesOf(SongBytes& song, const TagHeader& tag) {
  if (!tag.readable()) return {song, tag, tag.start + TagHeader::bytes};
  // The real end is looked for when a frame passes the published one, which few do.
  const auto published = tag.publishedEnd();
  const bool counts = published && *published <= song.size() && !(tag.version < 4 && tag.unsynchronised());
  if (counts) return {song, tag, *published, &tagEnd};
  return {song, tag, tagEnd(song, tag)};
}

std::uint64_t ID3TagEnd(SongBytes& song) {
  std::uint64_t end = 0;
  while (const auto tag = tagHeaderAt(song, end)) {
    if (!tag->readable() || (end > 0 && !plausible(song, *tag))) break;
    end = tagEnd(song, *tag);
  }
  return end;
}

}  // namespace velmora::tags
