#include "tags/id3v2_writer.h"

#include <cstddef>
#include <cstdint>
#include <limits>

#include "platform/file_error.h"
#include "tags/id3v2_reader.h"
#include "tags/update_result.h"

namespace velmora::tags {

namespace {

constexpr std::size_t sizeOffset = 6;
constexpr std::uint64_t sizeStep = 2048;  // slack for later edits

void PutBigEndian32(Bytes& out, std::size_t offset, std::uint64_t number) {
  if (number > std::numeric_limits<std::uint32_t>::max()) throw platform::FileError(6, u"Overflow");
  for (std::size_t i = 0; i < 4; ++i) out[offset + i] = static_cast<char>(number >> (8 * (3 - i)) & 0xFF);
}

void addFrame(Bytes& out, const Bytes& name, const Bytes& body) {
  if (name.size() != 4) throw platform::FileError(5, u"Invalid procedure call or argument");
  const std::size_t start = out.size();
  out += name;
  out.append(6, '\0');  // size and flags
  PutBigEndian32(out, start + 4, body.size() + 1);
  out += '\0';
  out += body;
}

}  // namespace

Bytes tagBytes(const FrameTable& frames) {
  Bytes out("ID3\x03\0\0\0\0\0\0", 10);
  for (int i = 1; i <= frames.count(); ++i) {
    const Bytes& name = frames.name(i);
    if (name.find("ID3") != Bytes::npos) continue;
    for (int tag = 1; tag <= frames.tags(name); ++tag) addFrame(out, name, frames.body(name, tag));
  }
  out.append(4, '\0');
  return out;
}

void writeTag(OpenSong& song, const FrameTable& frames) {
  Bytes tag = tagBytes(frames);
  const std::uint64_t total = tag.size();
  SongBytes& bytes = song.bytes();
  if (bytes.size() == 0) throw notAValidMP3File(song.path());

  const auto position = FindID3Position(bytes);
  const std::uint64_t oldSize = position ? tagSize(bytes, *position) : 0;
  if (total < oldSize) {
    PutBigEndian32(tag, sizeOffset, oldSize);
    return song.write(*position - 3, tag);
  }
  const std::uint64_t newSize = (total / sizeStep + 1) * sizeStep;
  PutBigEndian32(tag, sizeOffset, newSize);
  song.InsertZeroBytes(newSize - oldSize, tag);
}

}  // namespace velmora::tags
