#include "tags/song_bytes.h"

#include <algorithm>

namespace velmora::tags {

namespace {

constexpr std::size_t largestChunk = 64 * 1024;

}  // namespace

SongBytes::SongBytes(platform::OpenFile& file) : file_(file), size_(file.size()) {}

bool SongBytes::Stretch::holds(std::uint64_t offset, std::size_t count) const {
  return offset >= start && offset - start <= bytes.size() && bytes.size() - (offset - start) >= count;
}

const SongBytes::Stretch* SongBytes::find(std::uint64_t offset, std::size_t count) const {
  if (head_.holds(offset, count)) return &head_;
  return ahead_.holds(offset, count) ? &ahead_ : nullptr;
}

BytesView SongBytes::at(std::uint64_t offset, std::size_t count) {
  if (offset >= size_) return {};
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset));
  const Stretch* stretch = find(offset, count);
  if (!stretch) stretch = offset == 0 && count <= firstChunk ? &readHead() : &readAhead(offset, count);
  return stretch->bytes.substr(static_cast<std::size_t>(offset - stretch->start), count);
}

const SongBytes::Stretch& SongBytes::readHead() {
  head_.bytes = BytesView(headBlock_.data(), file_.readAt(0, headBlock_));
  return head_;
}

const SongBytes::Stretch& SongBytes::readAhead(std::uint64_t offset, std::size_t count) {
  const std::size_t chunk = static_cast<std::size_t>(std::min<std::uint64_t>(chunk_, size_ - offset));
  ahead_ = {};
  aheadBlock_.resize(std::max(count, chunk));
  ahead_ = {BytesView(aheadBlock_.data(), file_.readAt(offset, aheadBlock_)), offset};
  chunk_ = std::min(chunk_ * 2, largestChunk);
  return ahead_;
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
