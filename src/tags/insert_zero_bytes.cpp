#include "tags/insert_zero_bytes.h"

#include <algorithm>

#include "core/paths.h"
#include "core/text.h"
#include "tags/side_file.h"

namespace velmora::tags {

void InsertZeroBytes(platform::Files& files, const Text& path, std::unique_ptr<platform::OpenFile> song,
                     std::uint64_t count, BytesView head) {
  constexpr std::size_t blockBytes = 256 * 1024;
  const Text stem = Text(core::dropRight(core::paths::fileName(path), 4)) + u"ID3tagadd";
  SideFile side(files, path, stem, u".tmp");
  side.write(head);
  if (head.size() < count) side.writeZeros(count - head.size());

  std::uint64_t at = head.size() > count ? head.size() - count : 0;  // the head lies over these
  const std::uint64_t size = song->size();
  Bytes block(static_cast<std::size_t>(std::min<std::uint64_t>(blockBytes, size)), '\0');
  while (at < size) {
    const std::size_t got = song->readAt(at, block);
    if (got == 0) break;
    side.write(BytesView(block).substr(0, got));
    at += got;
  }
  song.reset();
  side.takePlace();
}

}  // namespace velmora::tags
