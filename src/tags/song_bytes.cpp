#include "tags/song_bytes.h"

#include <algorithm>

namespace velmora::tags {

namespace {

constexpr std::size_t firstChunk = 4096;
constexpr std::size_t largestChunk = 64 * 1024;

}  // namespace

SongBytes::SongBytes(platform::OpenFile& file) : file_(file), size_(file.size()), chunk_(firstChunk) {}

bool SongBytes::Stretch::holds(std::uint64_t offset, std::size_t count) const {
  return offset >= start && offset - start <= bytes.size() && bytes.size() - (offset - start) >= count;
}

const SongBytes::Stretch* SongBytes::find(std::uint64_t offset, std::size_t count) const {
  if (head_.holds(offset, count)) return &head_;
  return ahead_.holds(offset, count) ? &ahead_ : nullptr;
}

BytesView SongBytes::at(std::uint64_t offset, std::size_t count) {
  if (offset >= size_) return {};
  const std::uint64_t rest = size_ - offset;
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, rest));
  const Stretch* stretch = find(offset, count);
  if (!stretch) {
    Stretch& filled = offset == 0 && head_.bytes.empty() && count <= firstChunk ? head_ : ahead_;
    const std::size_t chunk = &filled == &head_ ? firstChunk : chunk_;
    filled.start = offset;
    filled.bytes.resize(std::max(count, static_cast<std::size_t>(std::min<std::uint64_t>(chunk, rest))));
    filled.bytes.resize(file_.readAt(offset, filled.bytes));
    if (&filled == &ahead_) chunk_ = std::min(chunk_ * 2, largestChunk);
    stretch = &filled;
  }
  return BytesView(stretch->bytes).substr(static_cast<std::size_t>(offset - stretch->start), count);
}

std::size_t SongBytes::copy(std::uint64_t offset, std::span<char> into) {
  const Stretch* stretch = find(offset, into.size());
  if (!stretch) return file_.readAt(offset, into);
  return stretch->bytes.copy(into.data(), into.size(), static_cast<std::size_t>(offset - stretch->start));
}

std::uint32_t bigEndian(BytesView bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

}  // namespace velmora::tags
