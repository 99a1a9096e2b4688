#pragma once

#include <cstdint>
#include <span>

#include "platform/files.h"

namespace velmora::test {

/// An open file that is a string of bytes: for parsers, which take any bytes. Counts what is asked of it.
class MemoryFile final : public platform::OpenFile {
 public:
  explicit MemoryFile(Bytes bytes) : content(std::move(bytes)) {}

  Bytes content;
  int reads = 0;
  std::uint64_t bytesRead = 0;

  std::uint64_t size() override { return content.size(); }
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, BytesView bytes) override;
  void flush() override {}
};

}  // namespace velmora::test
