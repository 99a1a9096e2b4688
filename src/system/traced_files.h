#pragma once

#include <functional>
#include <utility>

#include "platform/files.h"
#include "platform/trace.h"

namespace velmora::system {

/// Passes every operation on to another Files, and leaves a line in a trace for each: its paths, what came of
/// it, and how long it took, such as "move /a.mp3 /b.mp3: 58 File already exists, 0.041 ms". The operations
/// on an open file, and the questions that never fail, have a line as well.
class TracedFiles final : public platform::Files {
 public:
  TracedFiles(platform::Files& files, platform::Trace& trace) : files_(files), trace_(trace) {}

  platform::FolderListing list(const Text& folder) override;
  bool fileExists(const Text& path) override;
  bool folderExists(const Text& path) override;
  std::uint64_t size(const Text& path) override;
  platform::FileStamp stamp(const Text& path) override;
  std::unique_ptr<platform::OpenFile> open(const Text& path, platform::OpenMode mode) override;
  std::unique_ptr<platform::OpenFile> create(const Text& path) override;
  Bytes readAll(const Text& path) override;
  Text realPath(const Text& path) override { return files_.realPath(path); }
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
  void beforeRemoval(std::function<void()> call) override;
  bool busy(const Text& path) override;
  Text volumeOf(const Text& path) override;
  std::uint64_t freeBytes(const Text& path) override;
  std::vector<Text> volumes() override;

 private:
  std::unique_ptr<platform::OpenFile> traced(std::unique_ptr<platform::OpenFile> file, const Text& path);

  platform::Files& files_;
  platform::Trace& trace_;
};

}  // namespace velmora::system
