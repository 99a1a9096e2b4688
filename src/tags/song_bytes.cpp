#include "tags/song_bytes.h"

#include <algorithm>

namespace velmora::tags {

namespace {

constexpr std::size_t largestChunk = 64 * 1024;

}  // namespace

SongBytes::SongBytes(platform::OpenFile& file) : file_(file), size_(file.size()) {}

std::uint64_t SongBytes::nextSerial() {
  static std::uint64_t last = 0;
  return ++last;
}

bool SongBytes::Stretch::holds(std::uint64_t offset, std::size_t count) const {
  return offset >= start && offset - start <= bytes.size() && bytes.size() - (offset - start) >= count;
}

const SongBytes::Stretch* SongBytes::find(std::uint64_t offset, std::size_t count) const {
  if (head_.holds(offset, count)) return &head_;
  if (ahead_.holds(offset, count)) return &ahead_;
  return end_.holds(offset, count) ? &end_ : nullptr;
}

BytesView SongBytes::at(std::uint64_t offset, std::size_t count) {
  if (offset >= size_) return {};
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset));
  const Stretch* stretch = find(offset, count);
  if (!stretch) stretch = offset == 0 && count <= firstChunk ? &readHead() : &readAhead(offset, count);
  return stretch->bytes.substr(static_cast<std::size_t>(offset - stretch->start), count);
}

const SongBytes::Stretch& SongBytes::readHead() {
  // No more than there is: to meet the end of the file would take a call of its own.
  const auto block =
      std::span(headBlock_).first(static_cast<std::size_t>(std::min<std::uint64_t>(firstChunk, size_)));
  head_.bytes = BytesView(headBlock_.data(), file_.readAt(0, block));
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

BytesView SongBytes::end(std::size_t count) {
  const std::uint64_t offset = size_ - std::min<std::uint64_t>(count, size_);
  const Stretch* stretch = find(offset, static_cast<std::size_t>(size_ - offset));
  if (!stretch) {
    const auto block =
        std::span(endBlock_).first(static_cast<std::size_t>(std::min<std::uint64_t>(endBytes, size_)));
    const std::uint64_t start = size_ - block.size();
    end_ = {};
    end_ = {BytesView(endBlock_.data(), file_.readAt(start, block)), start};
    stretch = &end_;
  }
  const std::uint64_t skipped = std::min<std::uint64_t>(offset - stretch->start, stretch->bytes.size());
  return stretch->bytes.substr(static_cast<std::size_t>(skipped), count);
}

void SongBytes::wrote(std::uint64_t offset, BytesView bytes) {
  const auto follow = [&](const Stretch& stretch, char* block) {
    const std::uint64_t from = std::max(offset, stretch.start);
    const std::uint64_t to = std::min(offset + bytes.size(), stretch.start + stretch.bytes.size());
    if (from < to)
      bytes.copy(block + (from - stretch.start), static_cast<std::size_t>(to - from),
                 static_cast<std::size_t>(from - offset));
  };
  follow(head_, headBlock_.data());
  follow(ahead_, aheadBlock_.data());
  follow(end_, endBlock_.data());
}

std::uint32_t bigEndian(BytesView bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

}  // namespace velmora::tags
