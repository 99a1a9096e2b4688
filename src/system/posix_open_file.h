#pragma once

#include <sys/stat.h>

#include "platform/files.h"
#include "system/descriptor.h"

namespace velmora::system {

/// Takes an exclusive lock on a file, of both kinds that programs use, until the descriptor is closed. False
/// when another program holds one.
bool lockWhole(int descriptor);

/// An OpenFile over a descriptor. `path` only serves to tell errors apart.
class PosixOpenFile final : public platform::OpenFile {
 public:
  PosixOpenFile(Descriptor descriptor, Bytes path);

  std::uint64_t size() override;
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, BytesView bytes) override;
  void cutTo(std::uint64_t bytes) override;
  void flush() override;
  bool lockAlone() override { return lockWhole(descriptor_.get()); }
  platform::FileStamp stamp() override;

 private:
  Descriptor descriptor_;
  Bytes path_;
};

platform::FileStamp stampOf(const struct stat& status);

/// Writes all of `bytes` at `offset`; returns 0 or the error code.
int writeFully(int descriptor, BytesView bytes, std::uint64_t offset);

}  // namespace velmora::system
