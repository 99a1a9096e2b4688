#include "tests/support/memory_file.h"

#include <algorithm>

namespace velmora::test {

std::size_t MemoryFile::readAt(std::uint64_t offset, std::span<char> into) {
  ++reads;
  if (offset >= content.size()) return 0;
  const std::size_t got = content.copy(into.data(), into.size(), static_cast<std::size_t>(offset));
  bytesRead += got;
  return got;
}

void MemoryFile::writeAt(std::uint64_t offset, BytesView bytes) {
  const auto start = static_cast<std::size_t>(offset);
  content.resize(std::max(content.size(), start + bytes.size()), '\0');
  content.replace(start, bytes.size(), bytes);
}

}  // namespace velmora::test
