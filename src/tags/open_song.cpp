#include "tags/open_song.h"

#include <algorithm>
#include <utility>

#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "tags/side_file.h"

namespace velmora::tags {

OpenSong::OpenSong(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

platform::OpenFile& OpenSong::open() {
  if (!file_) {
    auto file = files_.open(path_, platform::OpenMode::ReadWrite);
    close();
    file_ = std::move(file);
    alone_ = file_->lockAlone();
  }
  return *file_;
}

void OpenSong::close() {
  bytes_.reset();
  file_.reset();
  reader_.reset();
}

bool OpenSong::busy() {
  try {
    open();
    if (alone_) return false;
    close();
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return files_.busy(path_);
  }
}

SongBytes& OpenSong::bytes() {
  platform::OpenFile& file = open();
  if (!bytes_) bytes_.emplace(file);
  return *bytes_;
}

SongBytes& OpenSong::bytesToRead() {
  if (bytes_) return *bytes_;
  try {
    return bytes();
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    reader_ = files_.open(path_, platform::OpenMode::Read);
    return bytes_.emplace(*reader_);
  }
}

void OpenSong::write(std::uint64_t offset, BytesView bytes) {
  platform::OpenFile& file = open();
  const bool within = bytes_ && offset + bytes.size() <= bytes_->size();
  try {
    file.writeAt(offset, bytes);
  } catch (const platform::FileError&) {
    bytes_.reset();
    throw;
  }
  if (within)
    bytes_->wrote(offset, bytes);
  else
    bytes_.reset();
}

void OpenSong::InsertZeroBytes(std::uint64_t count, BytesView head) {
  constexpr std::size_t blockBytes = 256 * 1024;
  const Text stem = Text(core::dropRight(core::paths::fileName(path_), 4)) + u"ID3tagadd";
  SideFile side(files_, path_, stem, u".tmp");
  side.write(head);
  if (head.size() < count) side.writeZeros(count - head.size());

  std::uint64_t at = head.size() > count ? head.size() - count : 0;  // the head lies over these
  const std::uint64_t size = open().size();
  Bytes block(static_cast<std::size_t>(std::min<std::uint64_t>(blockBytes, size)), '\0');
  while (at < size) {
    const std::size_t got = open().readAt(at, block);
    if (got == 0) throw platform::FileError(platform::FileError::deviceError);
    side.write(BytesView(block).substr(0, got));
    at += got;
  }
  close();
  side.takePlace();
}

}  // namespace velmora::tags
