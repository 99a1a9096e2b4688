#include "tests/support/fault_files.h"

#include <utility>

#include "core/text.h"

namespace velmora::test {

using platform::OpenFile;

class FaultFile final : public OpenFile {
 public:
  FaultFile(FaultFiles& files, std::unique_ptr<OpenFile> real, Text path)
      : files_(files), real_(std::move(real)), path_(std::move(path)) {}

  std::uint64_t size() override {
    files_.step("file size", path_);
    return real_->size();
  }
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
    files_.step("file read", path_);
    return real_->readAt(offset, into);
  }
  void writeAt(std::uint64_t offset, BytesView bytes) override {
    files_.write("file write", path_, bytes, [&](BytesView part) { real_->writeAt(offset, part); });
  }
  void cutTo(std::uint64_t bytes) override {
    files_.step("file cut", path_);
    real_->cutTo(bytes);
  }
  void flush() override {
    files_.step("file flush", path_);
    real_->flush();
  }
  bool lockAlone() override { return real_->lockAlone(); }
  platform::FileStamp stamp() override { return real_->stamp(); }

 private:
  FaultFiles& files_;
  std::unique_ptr<OpenFile> real_;
  Text path_;
};

void FaultFiles::failAt(int nth, int number) {
  nth_ = nth;
  number_ = number;
  lasts_ = false;
  failed_ = false;
}

void FaultFiles::failFrom(int nth, int number) {
  failAt(nth, number);
  lasts_ = true;
}

void FaultFiles::note(const char* operation, const Text& path, const Text& other) {
  std::string line = std::string(operation) + ' ' + core::toBytes(path);
  if (!other.empty()) line += ' ' + core::toBytes(other);
  log.push_back(std::move(line));
  if (onOperation) onOperation();
}

void FaultFiles::step(const char* operation, const Text& path, const Text& other) {
  note(operation, path, other);
  if (fails()) fail();
}

void FaultFiles::write(const char* operation, const Text& path, BytesView bytes,
                       const std::function<void(BytesView)>& writer) {
  note(operation, path);
  const bool failing = fails();
  if (!failing || tearsWrites) writer(failing ? bytes.substr(0, bytes.size() / 2) : bytes);
  if (failing) fail();
}

bool FaultFiles::fails() {
  if (nth_ == 0) return false;
  if (--nth_ > 0) return false;
  if (lasts_) nth_ = 1;
  return true;
}

void FaultFiles::fail() {
  failed_ = true;
  throw platform::FileError(number_);
}

platform::FolderListing FaultFiles::list(const Text& folder) {
  step("list", folder);
  return real_.list(folder);
}

std::uint64_t FaultFiles::size(const Text& path) {
  step("size", path);
  return real_.size(path);
}

std::unique_ptr<OpenFile> FaultFiles::open(const Text& path, platform::OpenMode mode) {
  step(mode == platform::OpenMode::Read ? "open" : "open to write", path);
  return std::make_unique<FaultFile>(*this, real_.open(path, mode), path);
}

std::unique_ptr<OpenFile> FaultFiles::create(const Text& path) {
  step("create", path);
  return std::make_unique<FaultFile>(*this, real_.create(path), path);
}

Bytes FaultFiles::readAll(const Text& path) {
  step("readAll", path);
  return real_.readAll(path);
}

Text FaultFiles::writeBeside(const Text& path, BytesView bytes) {
  Text beside;
  write("writeBeside", path, bytes, [&](BytesView part) { beside = real_.writeBeside(path, part); });
  return beside;
}

void FaultFiles::writeAll(const Text& path, BytesView bytes) {
  step("writeAll", path);
  real_.writeAll(path, bytes);
}

void FaultFiles::append(const Text& path, BytesView bytes) {
  write("append", path, bytes, [&](BytesView part) { real_.append(path, part); });
}

void FaultFiles::makeFolder(const Text& path) {
  step("makeFolder", path);
  real_.makeFolder(path);
}

void FaultFiles::move(const Text& from, const Text& to) {
  step("move", from, to);
  real_.move(from, to);
}

void FaultFiles::moveFolder(const Text& from, const Text& to) {
  step("moveFolder", from, to);
  real_.moveFolder(from, to);
}

void FaultFiles::replace(const Text& from, const Text& to) {
  step("replace", from, to);
  real_.replace(from, to);
}

void FaultFiles::remove(const Text& path) {
  step("remove", path);
  real_.remove(path);
}

void FaultFiles::removeEmptyFolder(const Text& path) {
  step("removeEmptyFolder", path);
  real_.removeEmptyFolder(path);
}

void FaultFiles::clearAttributes(const Text& path) {
  step("clearAttributes", path);
  real_.clearAttributes(path);
}

Text FaultFiles::volumeOf(const Text& path) {
  step("volumeOf", path);
  for (const Text& volume : volumes_)
    if (path.starts_with(volume)) return volume;
  return real_.volumeOf(path);
}

std::uint64_t FaultFiles::freeBytes(const Text& path) {
  step("freeBytes", path);
  return real_.freeBytes(path);
}

}  // namespace velmora::test
