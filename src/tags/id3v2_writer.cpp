#include "tags/id3v2_writer.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "platform/file_error.h"
#include "tags/id3v2_place.h"
#include "tags/patched_file.h"
#include "tags/update_result.h"

namespace velmora::tags {

namespace {

constexpr std::size_t sizeOffset = 6;
constexpr std::uint64_t sizeStep = 2048;  // slack for later edits
constexpr std::size_t terminatorBytes = 4;
constexpr std::uint64_t largestPublished = 0x0FFFFFFF;

[[noreturn]] void overflow() {
  throw platform::FileError(6, u"Overflow");
}

void PutBigEndian32(Bytes& out, std::size_t offset, std::uint64_t number) {
  if (number > 0xFFFFFFFF) overflow();
  for (std::size_t i = 0; i < 4; ++i) out[offset + i] = static_cast<char>(number >> (8 * (3 - i)) & 0xFF);
}

/// The number with seven bits in each of four bytes, as published.
std::uint64_t sevenBits(std::uint64_t number) {
  if (number > largestPublished) overflow();
  return (number & 0x7F) | (number & 0x3F80) << 1 | (number & 0x1FC000) << 2 | (number & 0xFE00000) << 3;
}

/// What a reader of the published form takes these size bytes for.
std::uint64_t asPublished(std::uint64_t plain) {
  return (plain & 0x7F) | (plain >> 8 & 0x7F) << 7 | (plain >> 16 & 0x7F) << 14 | (plain >> 24 & 0x7F) << 21;
}

void addFrame(Bytes& out, const TagFrame& frame, std::uint8_t version) {
  if (frame.name.size() != 4) throw platform::FileError(5, u"Invalid procedure call or argument");
  const std::size_t start = out.size();
  out += frame.name;
  out.append(4, '\0');
  PutBigEndian32(out, start + 4, version == 4 ? sevenBits(frame.body.size()) : frame.body.size());
  out += static_cast<char>(frame.flags >> 8);
  out += static_cast<char>(frame.flags & 0xFF);
  out += frame.body;
}

/// Whether music stands here that is found, and plays the same, also behind a stretch of bytes 0. A frame
/// that tells of a variable bit rate is passed over there by readers that expect it right behind the tag.
bool foundBehindZeros(SongBytes& song, std::uint64_t offset) {
  const BytesView start = song.at(offset, 256);
  if (start.size() < 4 || start[0] != '\xFF' || (start[1] & 0xE0) != 0xE0 || (start[1] & 0x06) == 0)
    return false;
  return std::ranges::none_of(std::initializer_list<BytesView>{"Xing", "Info", "VBRI"},
                              [&](BytesView name) { return start.find(name) != BytesView::npos; });
}

/// The place that a tag is written to: the bytes from `start` to `end` are replaced.
struct Place {
  std::uint64_t start = 0;
  std::uint64_t end = 0;
  std::uint8_t flags = 0;
  /// Nobody else's tag stands there: its size may be written the way this program alone understands, as long
  /// as that is no harm.
  bool own = true;
};

Place placeOf(SongBytes& song) {
  const auto tag = findTag(song);
  if (!tag || !tag->readable()) return {};
  const std::uint64_t end = tagEnd(song, *tag);
  const bool plain =
      end == tag->start + tag->plain && tag->plain % sizeStep == 0 && tag->publishedEnd() != end;
  constexpr std::uint8_t experimental = 0x20;
  const bool own = plain && tag->start == 0 && tag->version == 3 && tag->flags == 0;
  return {tag->start, end, static_cast<std::uint8_t>(tag->version > 2 ? tag->flags & experimental : 0), own};
}

/// Whether the song, with this tag in place, is read as one that ends where this tag does.
bool endsThere(SongBytes& song, const Place& place, BytesView tag) {
  PatchedFile patched(song, place.start, place.end, tag);
  SongBytes bytes(patched);
  const auto found = findTag(bytes);
  return found && found->start == place.start && tagEnd(bytes, *found) == place.start + tag.size();
}

/// The tag filled up to `size` bytes, with size bytes that lead every reader past it; nothing where they
/// would not do so for a reader of this program's.
std::optional<Bytes> completed(SongBytes& song, const Place& place, const Bytes& content,
                               std::uint64_t size) {
  Bytes tag = content;
  tag.resize(static_cast<std::size_t>(size), '\0');
  tag[5] = static_cast<char>(place.flags);
  const bool harmless = place.own && tag[3] == 3 && size % sizeStep == 0 && (size & 0x80808080) == 0 &&
                        content.size() <= TagHeader::bytes + asPublished(size) &&
                        foundBehindZeros(song, place.end);
  if (harmless) {
    PutBigEndian32(tag, sizeOffset, size);
    if (endsThere(song, place, tag)) return tag;
  }
  PutBigEndian32(tag, sizeOffset, sevenBits(size - TagHeader::bytes));
  if (endsThere(song, place, tag)) return tag;
  return {};
}

void writeWhatDiffers(OpenSong& song, std::uint64_t start, const Bytes& tag) {
  const BytesView old = song.bytes().at(start, tag.size());
  const auto first = static_cast<std::size_t>(std::ranges::mismatch(tag, old).in1 - tag.begin());
  if (first == tag.size()) return;
  std::size_t last = tag.size();
  while (tag[last - 1] == old[last - 1]) --last;
  song.write(start + first, BytesView(tag).substr(first, last - first));
}

}  // namespace

Bytes tagBytes(const FrameTable& frames, std::uint8_t version) {
  Bytes out("ID3\0\0\0\0\0\0\0", TagHeader::bytes);
  out[3] = static_cast<char>(version);
  for (const TagFrame& frame : frames.all()) addFrame(out, frame, version);
  return out + frames.tail;
}

void writeTag(OpenSong& song, const FrameTable& frames, std::uint8_t version) {
  const Bytes content = tagBytes(frames, version);
  SongBytes& bytes = song.bytes();
  if (bytes.size() == 0) throw notAValidMP3File(song.path());
  const Place place = placeOf(bytes);
  if (content.size() <= place.end - place.start)
    if (const auto tag = completed(bytes, place, content, place.end - place.start))
      return writeWhatDiffers(song, place.start, *tag);
  // What follows may look like another end of the tag, by chance; a tag of another size then does not.
  for (std::uint64_t size = ((content.size() + terminatorBytes) / sizeStep + 1) * sizeStep;; size += sizeStep)
    if (const auto tag = completed(bytes, place, content, size))
      return song.replacePart(place.start, place.end, *tag);
}

}  // namespace velmora::tags
