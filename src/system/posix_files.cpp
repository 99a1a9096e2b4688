#include "system/posix_files.h"

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <memory>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <utility>

#include "core/text.h"
#include "platform/file_error.h"
#include "system/descriptor.h"
#include "system/mounts.h"
#include "system/posix_error.h"
#include "system/posix_move.h"
#include "system/posix_open_file.h"

namespace velmora::system {

using platform::EntryKind;
using platform::FileError;

namespace {

constexpr std::size_t usualEntries = 16;  // an album
constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

/// A file that nobody may write is read-only for the superuser, too: it is a mark that a user has set.
bool markedReadOnly(const struct stat& status) {
  return (status.st_mode & anyWrite) == 0;
}

struct stat statusOf(const Bytes& path) {
  struct stat status;
  if (::stat(path.c_str(), &status) != 0) throwErrno(path);
  return status;
}

/// Whether a file may be opened in this way at all: throws where it is no regular file, and where it is to be
/// written and marked read-only.
void requireUsable(const struct stat& status, int flags) {
  if (!S_ISREG(status.st_mode)) throw FileError(FileError::pathAccess);
  if (flags != O_RDONLY && markedReadOnly(status)) throw FileError(FileError::permissionDenied);
}

/// Opens what must be a regular file. Anything else is refused unopened, since to open a pipe or a device is
/// to do something to it; O_NONBLOCK covers the moment between the look and the opening. That a song was
/// looked through does not count as an access, which would be one more write to the disk for each song of a
/// collection; but only its owner may ask for that.
Descriptor openRegular(const Bytes& path, int flags) {
  requireUsable(statusOf(path), flags);
  const auto open = [&](int more) {
    return untilDone([&] { return ::open(path.c_str(), flags | more | O_NONBLOCK | O_CLOEXEC); });
  };
  Descriptor file(open(O_NOATIME));
  if (!file.valid() && errno == EPERM) file = Descriptor(open(0));
  if (!file.valid()) throwErrno(path);
  return file;
}

Descriptor createFile(const Bytes& path, int flags) {
  Descriptor file(
      untilDone([&] { return ::open(path.c_str(), flags | O_CREAT | O_EXCL | O_CLOEXEC, 0666); }));
  if (!file.valid()) throwErrno(path);
  return file;
}

/// A file of the program's own, made where it is missing; a dangling link is followed to the file that it
/// stands for. The look at what it is may come behind the opening, where it costs least: nobody puts a device
/// in the place of such a file.
Descriptor openOwn(const Bytes& path, int flags) {
  Descriptor file(
      untilDone([&] { return ::open(path.c_str(), flags | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666); }));
  if (!file.valid() && errno == ENXIO) throw FileError(FileError::pathAccess);  // a pipe
  if (!file.valid()) throwErrno(path);
  return file;
}

struct stat statusOf(const Descriptor& file, const Bytes& path) {
  struct stat status;
  if (::fstat(file.get(), &status) != 0) throwErrno(path);
  return status;
}

std::uint64_t sizeOf(const Descriptor& file, const Bytes& path) {
  return static_cast<std::uint64_t>(statusOf(file, path).st_size);
}

EntryKind kindOf(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::File;
  return S_ISDIR(mode) ? EntryKind::Folder : EntryKind::Other;
}

platform::FolderEntry entryOf(int folder, const dirent64& entry) {
  const auto status = [&](int flags) {
    struct stat found = {};
    return ::fstatat(folder, entry.d_name, &found, flags) == 0 ? found.st_mode : mode_t{0};
  };
  mode_t mode = DTTOIF(entry.d_type);
  if (entry.d_type == DT_UNKNOWN) mode = status(AT_SYMLINK_NOFOLLOW);
  const bool link = S_ISLNK(mode);
  return {core::fromBytes(entry.d_name), kindOf(link ? status(0) : mode), link};
}

/// The nearest folder at or above a path that exists, with links resolved.
Bytes existingFolder(Bytes path) {
  for (;;) {
    struct stat status;
    if (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) break;
    Bytes parent = parentOf(path);
    if (parent == path) break;
    path = std::move(parent);
  }
  const std::unique_ptr<char, decltype(&::free)> resolved(::realpath(path.c_str(), nullptr), &::free);
  return resolved ? Bytes(resolved.get()) : path;
}

}  // namespace

platform::FolderListing PosixFiles::list(const Text& folder) {
  const Bytes path = nativePath(folder);
  const Descriptor descriptor(
      untilDone([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC); }));
  if (!descriptor.valid()) throwErrno(path);
  struct stat status;
  if (::fstat(descriptor.get(), &status) != 0) throwErrno(path);

  platform::FolderListing listing;
  listing.id = {status.st_dev, status.st_ino};
  listing.entries.reserve(usualEntries);
  // Not by opendir, whose buffer from the heap costs more than all else where folders are many and small.
  alignas(dirent64) char block[32 * 1024];
  for (;;) {
    const ssize_t filled = ::getdents64(descriptor.get(), block, sizeof block);
    if (filled < 0) throwErrno(path);
    if (filled == 0) return listing;
    for (ssize_t at = 0; at < filled;) {
      const auto& entry = *reinterpret_cast<const dirent64*>(block + at);
      at += entry.d_reclen;
      const BytesView name = entry.d_name;
      if (name == "." || name == "..") continue;
      listing.entries.push_back(entryOf(descriptor.get(), entry));
    }
  }
}

bool PosixFiles::fileExists(const Text& path) {
  struct stat status;
  return path.find(u'\0') == Text::npos && ::stat(core::toBytes(path).c_str(), &status) == 0 &&
         !S_ISDIR(status.st_mode);
}

bool PosixFiles::folderExists(const Text& path) {
  struct stat status;
  return path.find(u'\0') == Text::npos && ::stat(core::toBytes(path).c_str(), &status) == 0 &&
         S_ISDIR(status.st_mode);
}

std::uint64_t PosixFiles::size(const Text& path) {
  const Bytes native = nativePath(path);
  const struct stat status = statusOf(native);
  if (!S_ISREG(status.st_mode)) throw FileError(FileError::pathAccess);
  return static_cast<std::uint64_t>(status.st_size);
}

platform::FileStamp PosixFiles::stamp(const Text& path) {
  struct stat status;
  const bool known = path.find(u'\0') == Text::npos && ::stat(core::toBytes(path).c_str(), &status) == 0;
  return known ? stampOf(status) : platform::FileStamp();
}

Text PosixFiles::realPath(const Text& path) {
  if (path.find(u'\0') != Text::npos) return path;
  const std::unique_ptr<char, decltype(&::free)> found(::realpath(core::toBytes(path).c_str(), nullptr),
                                                       &::free);
  return found ? core::fromBytes(found.get()) : path;
}

std::unique_ptr<platform::OpenFile> PosixFiles::open(const Text& path, platform::OpenMode mode) {
  Bytes native = nativePath(path);
  Descriptor file = openRegular(native, mode == platform::OpenMode::Read ? O_RDONLY : O_RDWR);
  return std::make_unique<PosixOpenFile>(std::move(file), std::move(native));
}

std::unique_ptr<platform::OpenFile> PosixFiles::create(const Text& path) {
  Bytes native = nativePath(path);
  Descriptor file = createFile(native, O_RDWR);
  return std::make_unique<PosixOpenFile>(std::move(file), std::move(native));
}

Bytes PosixFiles::readAll(const Text& path) {
  const Bytes native = nativePath(path);
  const Descriptor file = openRegular(native, O_RDONLY);
  Bytes content;
  content.resize(sizeOf(file, native));
  std::size_t done = 0;
  for (;;) {
    // One byte more than is left, so that a file that grows meanwhile is still read to its end.
    if (done == content.size()) content.resize(done + std::max<std::size_t>(done / 2, 1));
    const ssize_t count =
        untilDone([&] { return ::read(file.get(), content.data() + done, content.size() - done); });
    if (count < 0) throwErrno(native);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  content.resize(done);
  return content;
}

Text PosixFiles::writeBeside(const Text& path, BytesView bytes) {
  Text beside = path + u".new";
  const Bytes native = nativePath(beside);
  // What a kill has left goes; no other program writes under this name.
  if (::unlink(native.c_str()) != 0 && errno != ENOENT) throwErrno(native);
  Descriptor file = createFile(native, O_WRONLY);
  int code = writeFully(file.get(), bytes, 0);
  // Begun for several files before the first is waited for, the disk needs one round for all of them.
  if (code == 0) ::sync_file_range(file.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
  if (const int closed = file.close(); code == 0) code = closed;
  if (code != 0) {
    ::unlink(native.c_str());
    throwFileError(code, native);
  }
  return beside;
}

void PosixFiles::writeAll(const Text& path, BytesView bytes) {
  const Text beside = writeBeside(path, bytes);
  try {
    replace(beside, path);
  } catch (const FileError&) {
    ::unlink(nativePath(beside).c_str());
    throw;
  }
}

void PosixFiles::append(const Text& path, BytesView bytes) {
  const Bytes native = nativePath(path);
  Descriptor file = openOwn(native, O_WRONLY | O_APPEND);
  // The journal is opened for each of its lines, and what it is does not change from one to the next.
  if (native != appendedLast_) requireUsable(statusOf(file, native), O_WRONLY);
  appendedLast_ = native;
  const ssize_t count = untilDone([&] { return ::write(file.get(), bytes.data(), bytes.size()); });
  if (count != static_cast<ssize_t>(bytes.size())) {
    // A record that did not fit must not leave its first half in front of the next one.
    const int code = count < 0 ? errno : ENOSPC;
    if (count > 0) {
      const off_t oldSize = ::lseek(file.get(), 0, SEEK_CUR) - count;
      [[maybe_unused]] const int cut = ::ftruncate(file.get(), oldSize);
    }
    throwFileError(code, native);
  }
  if (const int code = file.close()) throwFileError(code, native);
}

void PosixFiles::makeFolder(const Text& path) {
  const Bytes native = nativePath(path);
  struct stat status;
  // Mostly it is there, which a look tells for less than a try to make it.
  if (::stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) return;
  // Down to the first folder that can be made, and up again.
  std::vector<Bytes> missing = {native};
  while (!missing.empty()) {
    const Bytes& folder = missing.back();
    if (::mkdir(folder.c_str(), 0777) == 0) {
      missing.pop_back();
      continue;
    }
    const int code = errno;
    if (::stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
      missing.pop_back();
      continue;
    }
    Bytes parent = parentOf(folder);
    if (code != ENOENT || parent == folder) throwFileError(code, folder);
    if (::stat(parent.c_str(), &status) == 0) throwFileError(code, folder);
    missing.push_back(std::move(parent));
  }
}

void PosixFiles::move(const Text& from, const Text& to) {
  moveEntry(nativePath(from), nativePath(to), beforeRemoval_);
}

void PosixFiles::moveFolder(const Text& from, const Text& to) {
  moveEntry(nativePath(from), nativePath(to), beforeRemoval_);
}

void PosixFiles::replace(const Text& from, const Text& to) {
  replaceFile(nativePath(from), nativePath(to));
}

void PosixFiles::remove(const Text& path) {
  const Bytes native = nativePath(path);
  if (::unlink(native.c_str()) != 0) throwErrno(native);
}

void PosixFiles::removeEmptyFolder(const Text& path) {
  const Bytes native = nativePath(path);
  if (::rmdir(native.c_str()) != 0) throwErrno(native);
}

void PosixFiles::clearAttributes(const Text& path) {
  const Bytes native = nativePath(path);
  const struct stat status = statusOf(native);
  if (status.st_mode & S_IWUSR) return;
  if (::chmod(native.c_str(), (status.st_mode | S_IWUSR) & 07777) != 0) throwErrno(native);
}

/// The number of the file's node and the moment at which that was made.
Text PosixFiles::identity(const Text& path) {
  struct statx status;
  if (::statx(AT_FDCWD, core::toBytes(path).c_str(), AT_SYMLINK_NOFOLLOW, STATX_INO | STATX_BTIME, &status) !=
          0 ||
      (status.stx_mask & (STATX_INO | STATX_BTIME)) != (STATX_INO | STATX_BTIME))
    return {};
  return core::ascii(std::to_string(status.stx_ino) + '.' + std::to_string(status.stx_btime.tv_sec) + '.' +
                     std::to_string(status.stx_btime.tv_nsec));
}

bool PosixFiles::busy(const Text& path) {
  struct stat status;
  const Bytes native = core::toBytes(path);
  if (path.find(u'\0') != Text::npos || ::stat(native.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
    return false;
  const Descriptor file(untilDone([&] { return ::open(native.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC); }));
  if (!file.valid()) return errno == ETXTBSY || errno == EAGAIN;
  return !lockWhole(file.get());  // the lock ends with the descriptor
}

Text PosixFiles::volumeOf(const Text& path) {
  Bytes folder = existingFolder(nativePath(path));
  const dev_t device = statusOf(folder).st_dev;
  while (folder != "/") {
    Bytes parent = parentOf(folder);
    struct stat status;
    if (::stat(parent.c_str(), &status) != 0 || status.st_dev != device || parent == folder) break;
    folder = std::move(parent);
  }
  return core::fromBytes(folder);
}

std::uint64_t PosixFiles::freeBytes(const Text& path) {
  const Bytes folder = existingFolder(nativePath(path));
  struct statvfs volume;
  if (::statvfs(folder.c_str(), &volume) != 0) throwErrno(folder);
  return static_cast<std::uint64_t>(volume.f_bavail) * volume.f_frsize;
}

std::vector<Text> PosixFiles::volumes() {
  return mountPoints();
}

}  // namespace velmora::system
