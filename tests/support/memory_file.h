#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "platform/files.h"

namespace velmora::test {

/// An open file that is a string of bytes: for parsers, which take any bytes. Counts what is asked of it.
class MemoryFile final : public platform::OpenFile {
 public:
  explicit MemoryFile(Bytes bytes) : MemoryFile(std::make_shared<Bytes>(std::move(bytes))) {}
  /// Shares its content with others.
  explicit MemoryFile(std::shared_ptr<Bytes> shared) : content_(std::move(shared)) {}

  const Bytes& content() const { return *content_; }
  int reads = 0;
  std::uint64_t bytesRead = 0;

  std::uint64_t size() override { return content_->size(); }
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, BytesView bytes) override;
  void cutTo(std::uint64_t bytes) override;
  void flush() override {}

 private:
  std::shared_ptr<Bytes> content_;
};

}  // namespace velmora::test
