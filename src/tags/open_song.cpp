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
    stamp_ = file_->stamp();
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

/// What a write of `count` bytes would write over.
Bytes OpenSong::oldBytes(std::uint64_t offset, std::size_t count) {
  const Bytes old(bytes().at(offset, count));
  if (old.size() < std::min<std::uint64_t>(count, bytes().size() - std::min(offset, bytes().size())))
    throw platform::FileError(platform::FileError::deviceError);
  return old;
}

void OpenSong::write(std::uint64_t offset, BytesView bytes) {
  platform::OpenFile& file = open();
  const Bytes old = oldBytes(offset, bytes.size());
  const std::uint64_t size = bytes_->size();
  const bool within = offset + bytes.size() <= size;
  try {
    file.writeAt(offset, bytes);
    stamp_ = file.stamp();
  } catch (const platform::FileError&) {
    bytes_.reset();
    try {
      if (!old.empty()) file.writeAt(offset, old);
      file.cutTo(size);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);  // the first failure is the one to tell of
    }
    throw;
  }
  if (within)
    bytes_->wrote(offset, bytes);
  else
    bytes_.reset();
}

void OpenSong::cutTo(std::uint64_t bytes) {
  bytes_.reset();
  open().cutTo(bytes);
  stamp_ = file_->stamp();
}

void OpenSong::replacePart(std::uint64_t from, std::uint64_t to, BytesView bytes, const Copying& copying) {
  platform::OpenFile& file = open();
  const std::uint64_t size = file.size();
  const Text name(core::paths::fileName(path_));
  const bool growing = copying.ending.empty();
  SideFile side(files_, path_, growing ? Text(core::dropRight(name, 4)) + u"ID3tagadd" : name,
                growing ? Text(u".tmp") : copying.ending);
  Bytes block(copying.afterBlock ? 2'097'152 : 256 * 1024, '\0');
  const auto copy = [&](std::uint64_t at, std::uint64_t end) {
    while (at < end) {
      const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(block.size(), end - at));
      if (file.readAt(at, std::span(block).first(count)) < count)
        throw platform::FileError(platform::FileError::deviceError);
      side.write(BytesView(block).substr(0, count));
      at += count;
      if (copying.afterBlock) copying.afterBlock();
    }
  };
  copy(0, from);
  side.write(bytes);
  copy(to, size);
  const platform::FileStamp stamp = stamp_;
  close();
  side.takePlace(stamp);
}

}  // namespace velmora::tags
