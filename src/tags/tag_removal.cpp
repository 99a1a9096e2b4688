#include "tags/tag_removal.h"

#include <algorithm>
#include <cstdint>
#include <memory>

#include "core/paths.h"
#include "platform/file_error.h"
#include "tags/id3v1.h"
#include "tags/mp3_header.h"
#include "tags/side_file.h"
#include "tags/song_bytes.h"
#include "tags/update_result.h"

namespace velmora::tags {

namespace {

constexpr std::uint64_t blockBytes = 2'097'152;

/// Leaves of the song only the bytes from `from` up to `to`.
void keepPart(platform::Files& files, platform::Desktop& desktop, const Text& path,
              std::unique_ptr<platform::OpenFile> song, std::uint64_t from, std::uint64_t to,
              TextView ending) {
  SideFile side(files, path, core::paths::fileName(path), ending);
  Bytes block(static_cast<std::size_t>(std::min(blockBytes, to - from)), '\0');
  while (from < to) {
    block.resize(static_cast<std::size_t>(std::min<std::uint64_t>(block.size(), to - from)));
    if (song->readAt(from, block) < block.size()) throw platform::FileError(platform::FileError::deviceError);
    side.write(block);
    from += block.size();
    desktop.pumpEvents();
  }
  song.reset();
  side.takePlace();
}

}  // namespace

void SkiniID3v2(platform::Files& files, platform::Desktop& desktop, platform::FileHolder& player,
                const Text& path) {
  const platform::FileHandOver handOver(player, path);
  auto song = files.open(path, platform::OpenMode::Read);
  SongBytes bytes(*song);
  const std::uint64_t tagEnd = ID3TagEnd(bytes);
  if (tagEnd == 0) return;
  if (tagEnd >= bytes.size()) throw notAValidMP3File(path);
  keepPart(files, desktop, path, std::move(song), tagEnd, bytes.size(), u".new");
}

void SkiniID3v1(platform::Files& files, platform::Desktop& desktop, platform::FileHolder& player,
                const Text& path) {
  const platform::FileHandOver handOver(player, path);
  auto song = files.open(path, platform::OpenMode::Read);
  const std::uint64_t size = song->size();
  if (size <= cMP3ID3v1::tagBytes) throw notAValidMP3File(path);
  keepPart(files, desktop, path, std::move(song), 0, size - cMP3ID3v1::tagBytes, u".mp3");
}

}  // namespace velmora::tags
