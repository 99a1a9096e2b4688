#pragma once

#include <map>
#include <memory>

#include "platform/files.h"

namespace velmora::fuzz {

/// A handful of files in memory, for fuzzers that write thousands of songs a second. It knows what a tag
/// writer asks for; anything else throws FileError.
class MemoryFiles final : public platform::Files {
 public:
  /// The content of each file by its path.
  std::map<Text, std::shared_ptr<Bytes>> contents;
  void put(const Text& path, BytesView bytes) { contents[path] = std::make_shared<Bytes>(bytes); }
  /// Empty for a file that is missing.
  Bytes get(const Text& path) const;

  platform::FolderListing list(const Text& folder) override;
  bool fileExists(const Text& path) override { return contents.contains(path); }
  bool folderExists(const Text&) override { return false; }
  std::uint64_t size(const Text& path) override;
  std::unique_ptr<platform::OpenFile> open(const Text& path, platform::OpenMode mode) override;
  std::unique_ptr<platform::OpenFile> create(const Text& path) override;
  Bytes readAll(const Text& path) override { return *find(path); }
  void writeAll(const Text& path, BytesView bytes) override { put(path, bytes); }
  void append(const Text& path, BytesView bytes) override { put(path, get(path) + Bytes(bytes)); }
  void makeFolder(const Text& path) override;
  void move(const Text& from, const Text& to) override;
  void moveFolder(const Text& from, const Text& to) override;
  void replace(const Text& from, const Text& to) override;
  void remove(const Text& path) override;
  void removeEmptyFolder(const Text& path) override;
  void clearAttributes(const Text&) override {}
  bool busy(const Text&) override { return false; }
  Text volumeOf(const Text&) override { return u"/"; }
  std::uint64_t freeBytes(const Text&) override { return 1'000'000'000; }

 private:
  const std::shared_ptr<Bytes>& find(const Text& path) const;
};

}  // namespace velmora::fuzz
