#include "tests/support/memory_file.h"

#include <algorithm>

namespace velmora::test {

std::size_t MemoryFile::readAt(std::uint64_t offset, std::span<char> into) {
  ++reads;
  if (offset >= content_->size()) return 0;
  const std::size_t got = content_->copy(into.data(), into.size(), static_cast<std::size_t>(offset));
  bytesRead += got;
  return got;
}

void MemoryFile::writeAt(std::uint64_t offset, BytesView bytes) {
  const auto start = static_cast<std::size_t>(offset);
  content_->resize(std::max(content_->size(), start + bytes.size()), '\0');
  content_->replace(start, bytes.size(), bytes);
}

void MemoryFile::cutTo(std::uint64_t bytes) {
  if (bytes < content_->size()) content_->resize(static_cast<std::size_t>(bytes));
}

}  // namespace velmora::test
