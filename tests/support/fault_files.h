#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/file_error.h"
#include "platform/files.h"

namespace velmora::test {

/// Passes every operation on to another Files, notes it, and lets the n-th fail. Questions that never throw
/// (fileExists, folderExists, identity, busy) and stamps are neither counted nor failed.
class FaultFiles final : public platform::Files {
 public:
  explicit FaultFiles(platform::Files& real) : real_(real) {}

  /// From now on the n-th operation (from 1) fails with this number, and those behind it succeed again.
  void failAt(int nth, int number = platform::FileError::deviceError);
  /// The same, but every operation from the n-th on fails: a disk that is full or gone.
  void failFrom(int nth, int number = platform::FileError::diskFull);
  void failNoMore() { nth_ = 0; }
  /// Whether a failure has been brought about since the last failAt or failFrom.
  bool hasFailed() const { return failed_; }
  /// Whether a failing write still writes its first half.
  bool tearsWrites = false;

  /// Operations so far, those on open files included.
  int operations() const { return static_cast<int>(log.size()); }
  /// One line for each operation, such as "move /a /b", with names as bytes.
  std::vector<std::string> log;
  /// Hears of each operation once it is in the log, and may still choose that it is to fail.
  std::function<void()> onOperation;

  /// volumeOf answers `volume` for the paths that begin with it.
  void pretendVolume(Text volume) { volumes_.push_back(std::move(volume)); }

  platform::FolderListing list(const Text& folder) override;
  bool fileExists(const Text& path) override { return real_.fileExists(path); }
  bool folderExists(const Text& path) override { return real_.folderExists(path); }
  std::uint64_t size(const Text& path) override;
  platform::FileStamp stamp(const Text& path) override { return real_.stamp(path); }
  std::unique_ptr<platform::OpenFile> open(const Text& path, platform::OpenMode mode) override;
  std::unique_ptr<platform::OpenFile> create(const Text& path) override;
  Bytes readAll(const Text& path) override;
  Text realPath(const Text& path) override { return real_.realPath(path); }
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
  Text identity(const Text& path) override { return real_.identity(path); }
  void beforeRemoval(std::function<void()> call) override { real_.beforeRemoval(std::move(call)); }
  bool busy(const Text& path) override { return real_.busy(path); }
  Text volumeOf(const Text& path) override;
  std::uint64_t freeBytes(const Text& path) override;
  std::vector<Text> volumes() override { return real_.volumes(); }

 private:
  friend class FaultFile;
  void note(const char* operation, const Text& path, const Text& other = {});
  /// Notes an operation, and fails where it is its turn.
  void step(const char* operation, const Text& path, const Text& other = {});
  /// The same for a write.
  void write(const char* operation, const Text& path, BytesView bytes,
             const std::function<void(BytesView)>& writer);
  bool fails();
  [[noreturn]] void fail();

  platform::Files& real_;
  std::vector<Text> volumes_;
  int nth_ = 0;  // operations until the fault; 0 for none
  bool lasts_ = false;
  bool failed_ = false;
  int number_ = 0;
};

}  // namespace velmora::test
