#include "tags/song_bytes.h"

#include <algorithm>

namespace velmora::tags {

namespace {

constexpr std::size_t firstChunk = 4096;
constexpr std::size_t largestChunk = 64 * 1024;

}  // namespace

SongBytes::SongBytes(platform::OpenFile& file) : file_(file), size_(file.size()), chunk_(firstChunk) {}

bool SongBytes::holds(std::uint64_t offset, std::size_t count) const {
  return offset >= bufferStart_ && offset - bufferStart_ <= buffer_.size() &&
         buffer_.size() - (offset - bufferStart_) >= count;
}

BytesView SongBytes::at(std::uint64_t offset, std::size_t count) {
  if (offset >= size_) return {};
  const std::uint64_t rest = size_ - offset;
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, rest));
  if (!holds(offset, count)) {
    const std::size_t ahead = static_cast<std::size_t>(std::min<std::uint64_t>(chunk_, rest));
    buffer_.resize(std::max(count, ahead));
    bufferStart_ = offset;
    buffer_.resize(file_.readAt(offset, buffer_));
    chunk_ = std::min(chunk_ * 2, largestChunk);
  }
  return BytesView(buffer_).substr(static_cast<std::size_t>(offset - bufferStart_), count);
}

std::size_t SongBytes::copy(std::uint64_t offset, std::span<char> into) {
  if (!holds(offset, into.size())) return file_.readAt(offset, into);
  return buffer_.copy(into.data(), into.size(), static_cast<std::size_t>(offset - bufferStart_));
}

std::uint32_t bigEndian(BytesView bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

}  // namespace velmora::tags
