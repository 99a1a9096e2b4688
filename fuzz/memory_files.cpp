#include "fuzz/memory_files.h"

#include "platform/file_error.h"
#include "tests/support/memory_file.h"

namespace velmora::fuzz {

using platform::FileError;

Bytes MemoryFiles::get(const Text& path) const {
  const auto found = contents.find(path);
  return found == contents.end() ? Bytes() : *found->second;
}

const std::shared_ptr<Bytes>& MemoryFiles::find(const Text& path) const {
  const auto found = contents.find(path);
  if (found == contents.end()) throw FileError(FileError::fileNotFound);
  return found->second;
}

platform::FolderListing MemoryFiles::list(const Text&) {
  throw FileError(FileError::pathNotFound);
}

std::uint64_t MemoryFiles::size(const Text& path) {
  return find(path)->size();
}

std::unique_ptr<platform::OpenFile> MemoryFiles::open(const Text& path, platform::OpenMode) {
  return std::make_unique<test::MemoryFile>(find(path));
}

std::unique_ptr<platform::OpenFile> MemoryFiles::create(const Text& path) {
  if (fileExists(path)) throw FileError(FileError::fileExists);
  put(path, {});
  return open(path, platform::OpenMode::ReadWrite);
}

void MemoryFiles::makeFolder(const Text&) {
  throw FileError(FileError::pathAccess);
}

void MemoryFiles::move(const Text& from, const Text& to) {
  if (fileExists(to)) throw FileError(FileError::fileExists);
  replace(from, to);
}

void MemoryFiles::moveFolder(const Text&, const Text&) {
  throw FileError(FileError::pathNotFound);
}

void MemoryFiles::replace(const Text& from, const Text& to) {
  contents[to] = find(from);
  contents.erase(from);
}

void MemoryFiles::remove(const Text& path) {
  find(path);
  contents.erase(path);
}

void MemoryFiles::removeEmptyFolder(const Text&) {
  throw FileError(FileError::pathNotFound);
}

}  // namespace velmora::fuzz
