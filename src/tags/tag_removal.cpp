#include "tags/tag_removal.h"

#include <cstdint>

#include "platform/file_error.h"
#include "tags/id3v1.h"
#include "tags/id3v2_place.h"
#include "tags/open_song.h"
#include "tags/update_result.h"

namespace velmora::tags {

namespace {

/// Waits for the song, and runs `cut` on it once no other program holds it.
template <typename Cut>
bool cutWhenFree(const RemovalParts& parts, const Text& path, Cut cut) {
  const platform::FileHandOver handOver(parts.player, path);
  parts.files.clearAttributes(path);
  OpenSong song(parts.files, path);
  if (!parts.busyFile.waitUntilFree(song)) return false;
  cut(song);
  return true;
}

}  // namespace

bool SkiniID3v2(const RemovalParts& parts, const Text& path) {
  return cutWhenFree(parts, path, [&](OpenSong& song) {
    const auto tag = findTag(song.bytes());
    if (!tag || tag->start != 0 || !tag->readable()) return;
    const std::uint64_t end = tagEnd(song.bytes(), *tag);
    if (end >= song.bytes().size()) throw notAValidMP3File(path);
    song.replacePart(0, end, {}, {u".new", [&] { parts.desktop.pumpEvents(); }});
  });
}

bool SkiniID3v1(const RemovalParts& parts, const Text& path) {
  return cutWhenFree(parts, path, [&](OpenSong& song) {
    const std::uint64_t size = song.bytes().size();
    if (!song.bytes().end(cMP3ID3v1::tagBytes).starts_with("TAG")) return;
    if (size <= cMP3ID3v1::tagBytes) throw notAValidMP3File(path);
    song.cutTo(size - cMP3ID3v1::tagBytes);
  });
}

}  // namespace velmora::tags
