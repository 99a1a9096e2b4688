#include "system/posix_copy.h"

#include <algorithm>
#include <atomic>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/xattr.h>
#include <vector>

#include "platform/file_error.h"
#include "platform/trace.h"
#include "system/posix_error.h"
#include "system/posix_open_file.h"

namespace velmora::system {

using platform::FileError;

namespace {

constexpr std::size_t blockSize = 256 * 1024;

Bytes inside(const Bytes& folder, const Bytes& name) {
  return folder + '/' + name;
}

std::vector<Bytes> namesIn(const Bytes& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(folder.c_str()), &::closedir);
  if (!stream) throwErrno(folder);
  std::vector<Bytes> names;
  for (errno = 0; const dirent* entry = ::readdir(stream.get()); errno = 0) {
    const BytesView name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  if (errno != 0) throwErrno(folder);
  return names;
}

struct stat linkStatus(const Bytes& path) {
  struct stat status;
  if (::lstat(path.c_str(), &status) != 0) throwErrno(path);
  return status;
}

void takeTimes(int descriptor, const struct stat& like) {
  const timespec times[] = {like.st_atim, like.st_mtim};
  ::futimens(descriptor, times);  // a disk without times of this kind is no reason to fail
}

/// Copies the bytes and returns how many there were.
std::uint64_t copyBytes(int from, int to, const Bytes& source, const Bytes& target) {
  const auto block = std::make_unique<char[]>(blockSize);
  std::uint64_t offset = 0;
  for (;;) {
    const ssize_t count = untilDone([&] { return ::read(from, block.get(), blockSize); });
    if (count < 0) throwErrno(source);
    if (count == 0) return offset;
    const auto bytes = static_cast<std::size_t>(count);
    if (const int code = writeFully(to, {block.get(), bytes}, offset)) throwFileError(code, target);
    offset += bytes;
  }
}

void copyFile(const Bytes& from, const Bytes& to) {
  const Descriptor source(
      untilDone([&] { return ::open(from.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); }));
  if (!source.valid()) throwErrno(from);
  struct stat before;
  if (::fstat(source.get(), &before) != 0) throwErrno(from);
  if (!S_ISREG(before.st_mode)) throw FileError(FileError::pathAccess);

  Descriptor target(
      untilDone([&] { return ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600); }));
  if (!target.valid()) throwErrno(to);
  const std::uint64_t copied = copyBytes(source.get(), target.get(), from, to);

  struct stat after;
  struct stat made;
  if (::fstat(source.get(), &after) != 0) throwErrno(from);
  if (::fstat(target.get(), &made) != 0) throwErrno(to);
  const bool same = copied == static_cast<std::uint64_t>(after.st_size) && made.st_size == after.st_size &&
                    after.st_mtim.tv_sec == before.st_mtim.tv_sec &&
                    after.st_mtim.tv_nsec == before.st_mtim.tv_nsec;
  if (!same) throw FileError(FileError::deviceError);

  takeModeAndOwner(target.get(), before);
  takeAttributes(target.get(), source.get());
  takeTimes(target.get(), before);
  if (untilDone([&] { return ::fsync(target.get()); }) != 0) throwErrno(to);
  if (const int code = target.close()) throwFileError(code, to);
}

void copyLink(const Bytes& from, const Bytes& to) {
  const Bytes text = linkText(from);
  if (text.empty()) throwErrno(from);
  if (::symlink(text.c_str(), to.c_str()) != 0) throwErrno(to);
}

void copyFolder(const Bytes& from, const Bytes& to, const struct stat& status) {
  if (::mkdir(to.c_str(), 0700) != 0) throwErrno(to);
  for (const Bytes& name : namesIn(from)) copyEntry(inside(from, name), inside(to, name));
  // Last of all, since the mode may forbid to write and each new entry changes the times.
  const Descriptor folder(::open(to.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.valid()) throwErrno(to);
  takeModeAndOwner(folder.get(), status);
  takeTimes(folder.get(), status);
}

/// Removes a tree of our own making, as far as that goes.
void discard(const Bytes& path) {
  struct stat status;
  if (::lstat(path.c_str(), &status) != 0) return;
  if (!S_ISDIR(status.st_mode)) {
    ::unlink(path.c_str());
    return;
  }
  ::chmod(path.c_str(), 0700);
  try {
    for (const Bytes& name : namesIn(path)) discard(inside(path, name));
  } catch (const FileError& error) {
    platform::caughtSilently(error);
    return;
  }
  ::rmdir(path.c_str());
}

}  // namespace

Bytes temporaryBeside(const Bytes& path) {
  static std::atomic<unsigned> counter = 0;
  return inside(parentOf(path),
                ".velmora-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".part");
}

Bytes linkText(const Bytes& path) {
  Bytes text(PATH_MAX, '\0');
  const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
  text.resize(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  return text;
}

UnfinishedCopy::~UnfinishedCopy() {
  if (!path_.empty()) discard(path_);
}

void copyEntry(const Bytes& from, const Bytes& to) {
  const struct stat status = linkStatus(from);
  if (S_ISDIR(status.st_mode)) {
    copyFolder(from, to, status);
  } else if (S_ISLNK(status.st_mode)) {
    copyLink(from, to);
  } else if (S_ISREG(status.st_mode)) {
    copyFile(from, to);
  } else {
    throw FileError(FileError::pathAccess);
  }
}

void removeCopied(const Bytes& source, const Bytes& copy) {
  if (!S_ISDIR(linkStatus(copy).st_mode)) {
    if (::unlink(source.c_str()) != 0) throwErrno(source);
    return;
  }
  for (const Bytes& name : namesIn(copy)) removeCopied(inside(source, name), inside(copy, name));
  if (::rmdir(source.c_str()) != 0) throwErrno(source);
}

void takeAttributes(int descriptor, int like) {
  const ssize_t length = ::flistxattr(like, nullptr, 0);
  if (length <= 0) return;
  Bytes names(static_cast<std::size_t>(length), '\0');
  const ssize_t listed = ::flistxattr(like, names.data(), names.size());
  if (listed <= 0) return;
  names.resize(static_cast<std::size_t>(listed));
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* name = names.c_str() + at;
    const ssize_t size = ::fgetxattr(like, name, nullptr, 0);
    if (size < 0) continue;
    Bytes value(static_cast<std::size_t>(size), '\0');
    const ssize_t got = ::fgetxattr(like, name, value.data(), value.size());
    if (got >= 0) ::fsetxattr(descriptor, name, value.data(), static_cast<std::size_t>(got), 0);
  }
}

void takeModeAndOwner(int descriptor, const struct stat& like) {
  // The owner first: a change of owner takes the set-id bits away. Only the superuser may change it.
  [[maybe_unused]] const int owner = ::fchown(descriptor, like.st_uid, like.st_gid);
  ::fchmod(descriptor, like.st_mode & 07777);
}

}  // namespace velmora::system
