#include "system/traced_files.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <type_traits>
#include <utility>

#include "core/text.h"

namespace velmora::system {

namespace {

using platform::OpenFile;
using platform::Trace;

std::string told(bool answer) {
  return answer ? "yes" : "no";
}
std::string told(std::uint64_t number) {
  return std::to_string(number);
}
std::string told(const Text& path) {
  return core::toBytes(path);
}
std::string told(const Bytes& bytes) {
  return std::to_string(bytes.size()) + " bytes";
}
std::string told(const platform::FolderListing& listing) {
  return std::to_string(listing.entries.size()) + " entries";
}
std::string told(const std::unique_ptr<OpenFile>&) {
  return "done";
}
std::string told(const std::vector<Text>& paths) {
  return std::to_string(paths.size()) + " paths";
}

/// Time since it was made, as ", 0.041 ms".
class Clock {
 public:
  std::string elapsed() const {
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin_;
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), ", %.3f ms", time.count());
    return text.data();
  }

 private:
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

/// Runs `operation`, and leaves `what` in the trace with what it answered or threw.
template <typename Operation>
auto run(Trace& trace, const std::string& what, Operation&& operation) {
  const Clock clock;
  try {
    if constexpr (std::is_void_v<decltype(operation())>) {
      operation();
      trace.line(what + ": done" + clock.elapsed());
    } else {
      auto answer = operation();
      trace.line(what + ": " + told(answer) + clock.elapsed());
      return answer;
    }
  } catch (const std::exception& error) {
    trace.line(what + ": " + platform::inWords(error) + clock.elapsed());
    throw;
  }
}

std::string named(const char* operation, const Text& path) {
  return operation + (' ' + core::toBytes(path));
}

std::string named(const char* operation, const Text& from, const Text& to) {
  return named(operation, from) + ' ' + core::toBytes(to);
}

std::string named(const char* operation, const Text& path, BytesView bytes) {
  return named(operation, path) + ' ' + std::to_string(bytes.size()) + " bytes";
}

class TracedFile final : public OpenFile {
 public:
  TracedFile(std::unique_ptr<OpenFile> file, Text path, Trace& trace)
      : file_(std::move(file)), path_(std::move(path)), trace_(trace) {}
  ~TracedFile() override { trace_.line(named("close", path_)); }

  std::uint64_t size() override {
    return run(trace_, named("sizeOfOpen", path_), [this] { return file_->size(); });
  }
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
    return run(trace_, named("readAt", path_) + at(offset, into.size()),
               [&] { return std::uint64_t{file_->readAt(offset, into)}; });
  }
  void writeAt(std::uint64_t offset, BytesView bytes) override {
    run(trace_, named("writeAt", path_) + at(offset, bytes.size()), [&] { file_->writeAt(offset, bytes); });
  }
  void cutTo(std::uint64_t bytes) override {
    run(trace_, named("cutTo", path_) + ' ' + std::to_string(bytes), [&] { file_->cutTo(bytes); });
  }
  void flush() override {
    run(trace_, named("flush", path_), [this] { file_->flush(); });
  }
  bool lockAlone() override {
    return run(trace_, named("lockAlone", path_), [this] { return file_->lockAlone(); });
  }
  platform::FileStamp stamp() override { return file_->stamp(); }

 private:
  static std::string at(std::uint64_t offset, std::size_t bytes) {
    return ' ' + std::to_string(offset) + " +" + std::to_string(bytes);
  }

  std::unique_ptr<OpenFile> file_;
  Text path_;
  Trace& trace_;
};

}  // namespace

std::unique_ptr<OpenFile> TracedFiles::traced(std::unique_ptr<OpenFile> file, const Text& path) {
  return std::make_unique<TracedFile>(std::move(file), path, trace_);
}

platform::FolderListing TracedFiles::list(const Text& folder) {
  return run(trace_, named("list", folder), [&] { return files_.list(folder); });
}

bool TracedFiles::fileExists(const Text& path) {
  return run(trace_, named("fileExists", path), [&] { return files_.fileExists(path); });
}

bool TracedFiles::folderExists(const Text& path) {
  return run(trace_, named("folderExists", path), [&] { return files_.folderExists(path); });
}

std::uint64_t TracedFiles::size(const Text& path) {
  return run(trace_, named("size", path), [&] { return files_.size(path); });
}

platform::FileStamp TracedFiles::stamp(const Text& path) {
  return files_.stamp(path);
}

std::unique_ptr<OpenFile> TracedFiles::open(const Text& path, platform::OpenMode mode) {
  const char* operation = mode == platform::OpenMode::Read ? "open" : "openToWrite";
  return traced(run(trace_, named(operation, path), [&] { return files_.open(path, mode); }), path);
}

std::unique_ptr<OpenFile> TracedFiles::create(const Text& path) {
  return traced(run(trace_, named("create", path), [&] { return files_.create(path); }), path);
}

Bytes TracedFiles::readAll(const Text& path) {
  return run(trace_, named("readAll", path), [&] { return files_.readAll(path); });
}

Text TracedFiles::writeBeside(const Text& path, BytesView bytes) {
  Text beside;
  run(trace_, named("writeBeside", path, bytes), [&] { beside = files_.writeBeside(path, bytes); });
  return beside;
}

void TracedFiles::writeAll(const Text& path, BytesView bytes) {
  run(trace_, named("writeAll", path, bytes), [&] { files_.writeAll(path, bytes); });
}

void TracedFiles::append(const Text& path, BytesView bytes) {
  run(trace_, named("append", path, bytes), [&] { files_.append(path, bytes); });
}

void TracedFiles::makeFolder(const Text& path) {
  run(trace_, named("makeFolder", path), [&] { files_.makeFolder(path); });
}

void TracedFiles::move(const Text& from, const Text& to) {
  run(trace_, named("move", from, to), [&] { files_.move(from, to); });
}

void TracedFiles::moveFolder(const Text& from, const Text& to) {
  run(trace_, named("moveFolder", from, to), [&] { files_.moveFolder(from, to); });
}

void TracedFiles::replace(const Text& from, const Text& to) {
  run(trace_, named("replace", from, to), [&] { files_.replace(from, to); });
}

void TracedFiles::remove(const Text& path) {
  run(trace_, named("remove", path), [&] { files_.remove(path); });
}

void TracedFiles::removeEmptyFolder(const Text& path) {
  run(trace_, named("removeEmptyFolder", path), [&] { files_.removeEmptyFolder(path); });
}

void TracedFiles::clearAttributes(const Text& path) {
  run(trace_, named("clearAttributes", path), [&] { files_.clearAttributes(path); });
}

Text TracedFiles::identity(const Text& path) {
  return run(trace_, named("identity", path), [&] { return files_.identity(path); });
}

void TracedFiles::beforeRemoval(std::function<void()> call) {
  files_.beforeRemoval(std::move(call));
}

bool TracedFiles::busy(const Text& path) {
  return run(trace_, named("busy", path), [&] { return files_.busy(path); });
}

Text TracedFiles::volumeOf(const Text& path) {
  return run(trace_, named("volumeOf", path), [&] { return files_.volumeOf(path); });
}

std::uint64_t TracedFiles::freeBytes(const Text& path) {
  return run(trace_, named("freeBytes", path), [&] { return files_.freeBytes(path); });
}

std::vector<Text> TracedFiles::volumes() {
  return run(trace_, "volumes", [&] { return files_.volumes(); });
}

}  // namespace velmora::system
