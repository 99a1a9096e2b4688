#pragma once

#include <functional>
#include <utility>

#include "platform/files.h"

namespace velmora::system {

/// Files by system calls on native bytes: any file name survives byte for byte.
class PosixFiles final : public platform::Files {
 public:
  platform::FolderListing list(const Text& folder) override;
  bool fileExists(const Text& path) override;
  bool folderExists(const Text& path) override;
  std::uint64_t size(const Text& path) override;
  platform::FileStamp stamp(const Text& path) override;
  Text realPath(const Text& path) override;
  std::unique_ptr<platform::OpenFile> open(const Text& path, platform::OpenMode mode) override;
  std::unique_ptr<platform::OpenFile> create(const Text& path) override;
  Bytes readAll(const Text& path) override;
  Text writeBeside(const Text& path, BytesView bytes) override;
  void writeAll(const Text& path, BytesView bytes) override;
  void append(const Text& path, BytesView bytes) override;
  void makeFolder(const Text& path) override;
  void move(const Text& from, const Text& to) override;
  void moveFolder(const Text& from, const Text& to) override;
  void replace(const Text& from, const Text& to) override;
  void remove(const Text& path) override;
  void removeEmptyFolder(const Text& path) override;
  void clearAttributes(const Text& path) override;
  Text identity(const Text& path) override;
  void beforeRemoval(std::function<void()> call) override { beforeRemoval_ = std::move(call); }
  bool busy(const Text& path) override;
  Text volumeOf(const Text& path) override;
  std::uint64_t freeBytes(const Text& path) override;
  std::vector<Text> volumes() override;

 private:
  std::function<void()> beforeRemoval_;
  Bytes appendedLast_;  // a file that bytes may be added to, as a look has told
};

}  // namespace velmora::system
