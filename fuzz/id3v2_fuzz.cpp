#include <optional>

#include "core/code_page.h"
#include "fuzz/memory_files.h"
#include "fuzz/target.h"
#include "platform/file_error.h"
#include "tags/id3v2.h"
#include "tags/id3v2_reader.h"
#include "tags/id3v2_writer.h"
#include "tags/tag_cache.h"
#include "tests/support/memory_file.h"

using velmora::Bytes;
using velmora::BytesView;
using velmora::fuzz::require;
namespace tags = velmora::tags;

namespace {

/// The search for the marker, block by block over bytes in memory.
std::optional<std::size_t> searchedInBlocks(BytesView bytes) {
  for (std::size_t start = 0; start < bytes.size(); start += 4093) {
    const bool last = start + 4096 >= bytes.size();
    const BytesView block = bytes.substr(start, last ? bytes.size() - start - 1 : 4096);
    if (const auto found = block.find("ID3"); found != BytesView::npos) return start + found + 3;
    if (last || block.find("\xFF\xFB") != BytesView::npos) break;
  }
  return {};
}

/// What an update makes of a file, step by step: bytes 0 ahead of all, then the tag over the start; or the
/// tag over the old one.
Bytes updated(BytesView old, Bytes tag) {
  const auto position = searchedInBlocks(old);
  const bool hasSize = position && old.size() - *position >= 7;
  const std::uint64_t oldSize = hasSize ? tags::bigEndian(old.substr(*position + 3, 4)) : 0;
  const bool inPlace = tag.size() < oldSize;
  const std::uint64_t size = inPlace ? oldSize : (tag.size() / 2048 + 1) * 2048;
  for (std::size_t i = 0; i < 4; ++i) tag[6 + i] = static_cast<char>(size >> (8 * (3 - i)) & 0xFF);
  Bytes file = inPlace ? Bytes(old) : Bytes(size - oldSize, '\0') + Bytes(old);
  return file.replace(inPlace ? *position - 3 : 0, tag.size(), tag);
}

void requireSameAsCache(velmora::platform::Files& files, const tags::cMP3ID3v2& tag, BytesView bytes) {
  velmora::core::TrackTable table;
  table.appendPath(u"song.mp3");
  table.resizeColumns();
  tags::TagCache cache(table, files);
  require(cache.read(u"song.mp3", 1) == !bytes.empty(), "every song that has bytes is read");
  const velmora::core::Track& track = table.track(1);
  require(track.imaid3v2.isTrue() == tag.HasID3v2Tag() && track.pesmaid3v2.text() == tag.Title() &&
              track.pevacID3v2.text() == tag.Artist() && track.albumid3v2.text() == tag.Album() &&
              track.godinaid3v2.text() == tag.Year() && track.vrstaid3v2.text() == tag.OtherGenreName(),
          "the cache sees what the tag sees");
}

}  // namespace

VELMORA_FUZZ_TARGET(id3v2) {
  velmora::fuzz::MemoryFiles files;
  files.put(u"song.mp3", bytes);
  {
    velmora::test::MemoryFile file{Bytes(bytes)};
    tags::SongBytes song(file);
    require(tags::FindID3Position(song) == searchedInBlocks(bytes), "reading ahead finds the same marker");
  }
  tags::cMP3ID3v2 tag(files);
  tag.setMP3File(u"song.mp3");
  requireSameAsCache(files, tag, bytes);

  tags::FrameTable frames;
  for (int i = 1; i <= tag.FrameCount(); ++i)
    for (int each = 1; each <= tag.TagsInFrame(tag.Frame(i)); ++each)
      frames.add(tag.Frame(i), velmora::core::toCodePage(tag.TagText(tag.Frame(i), each)));
  tags::OpenSong song(files, u"song.mp3");
  Bytes wanted(bytes);
  try {
    if (!bytes.empty()) wanted = updated(bytes, tags::tagBytes(frames));
    tags::writeTag(song, frames);
  } catch (const velmora::platform::FileError&) {
    wanted = bytes;
  }
  song.close();
  require(files.get(u"song.mp3") == wanted, "an update leaves the file as the steps tell");
  require(files.contents.size() == 1, "nothing stays beside the song");
}
