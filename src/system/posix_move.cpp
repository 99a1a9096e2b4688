#include "system/posix_move.h"

#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>

#include "core/text.h"
#include "platform/file_error.h"
#include "system/descriptor.h"
#include "system/posix_copy.h"
#include "system/posix_error.h"

namespace velmora::system {

using platform::FileError;

namespace {

bool sameEntry(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

/// Whether the folder of `path` lists exactly its name. Asking for the path itself would not tell, since the
/// disk may take another spelling for it.
bool listsSpelling(const Bytes& path) {
  const Bytes name = path.substr(path.rfind('/') + 1);
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(parentOf(path).c_str()), &::closedir);
  if (!stream) return true;
  while (const dirent* entry = ::readdir(stream.get()))
    if (name == entry->d_name) return true;
  return false;
}

/// Whether the two paths are spellings of one entry that differ in capitals alone, on a disk that does not
/// tell capitals apart. Two names of one file by hard links are two entries.
bool onlyRespelled(const Bytes& from, const Bytes& to) {
  struct stat source;
  struct stat target;
  return core::equalNoCase(core::fromBytes(from), core::fromBytes(to)) &&
         ::lstat(from.c_str(), &source) == 0 && ::lstat(to.c_str(), &target) == 0 &&
         sameEntry(source, target) && !listsSpelling(to);
}

void respell(const Bytes& from, const Bytes& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) throwErrno(from);
  if (listsSpelling(to)) return;
  // The disk took the new spelling for the old name and did nothing: go by way of a third one.
  const Bytes between = temporaryBeside(to);
  if (const int code = renameNoReplace(from, between)) throwFileError(code, from);
  if (const int code = renameNoReplace(between, to)) {
    renameNoReplace(between, from);
    throwFileError(code, to);
  }
}

void flushFolder(const Bytes& folder) {
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.valid()) ::fsync(descriptor.get());
}

/// To another volume: the copy becomes visible under its name when it is whole and on the disk, and only then
/// the source goes.
void moveAcross(const Bytes& from, const Bytes& to, const std::function<void()>& beforeRemoval) {
  struct stat taken;
  if (::lstat(to.c_str(), &taken) == 0) throw FileError(FileError::fileExists);
  UnfinishedCopy copy(temporaryBeside(to));
  copyEntry(from, copy.path());
  if (beforeRemoval) beforeRemoval();
  if (const int code = renameNoReplace(copy.path(), to)) throwFileError(code, to);
  copy.keep();
  flushFolder(parentOf(to));

  struct stat source;
  const bool folder = ::lstat(from.c_str(), &source) == 0 && S_ISDIR(source.st_mode);
  if (folder) {
    // From here on every file stands at the target; what cannot be taken away merely stays behind.
    removeCopied(from, to);
  } else if (::unlink(from.c_str()) != 0) {
    const int code = errno;
    ::unlink(to.c_str());
    throwFileError(code, from);
  }
}

/// The file that a path leads to once all links are followed; the path itself where there is none.
Bytes resolved(const Bytes& path) {
  const std::unique_ptr<char, decltype(&::free)> found(::realpath(path.c_str(), nullptr), &::free);
  return found ? Bytes(found.get()) : path;
}

/// A link that has moved to another folder leads where it led: a relative one is written anew, as seen from
/// there. One that led nowhere stays as it is.
void keepLead(const Bytes& from, const Bytes& to) {
  struct stat led;
  struct stat leads;
  if (parentOf(from) == parentOf(to) || ::lstat(to.c_str(), &leads) != 0 || !S_ISLNK(leads.st_mode)) return;
  const Bytes text = linkText(to);
  const Bytes full = resolved(parentOf(from)) + '/' + text;
  if (text.starts_with('/') || ::stat(full.c_str(), &led) != 0) return;
  const auto leadsThere = [&](const Bytes& link) {
    return ::stat(link.c_str(), &leads) == 0 && sameEntry(led, leads);
  };
  if (leadsThere(to)) return;
  const Bytes relative =
      std::filesystem::path(full).lexically_normal().lexically_relative(resolved(parentOf(to)));
  // Where ".." goes up from behind another link, only the full path is sure.
  for (const Bytes& written : {relative, full}) {
    UnfinishedCopy link(temporaryBeside(to));
    if (::symlink(written.c_str(), link.path().c_str()) != 0) return;
    if (!leadsThere(link.path())) continue;
    // Exchanged, so that a file that another program has put there this moment can be given back its place.
    const auto exchange = [&] {
      return ::renameat2(AT_FDCWD, link.path().c_str(), AT_FDCWD, to.c_str(), RENAME_EXCHANGE) == 0;
    };
    if (exchange() && linkText(link.path()) != text) exchange();
    return;
  }
}

}  // namespace

int renameOverPlaceholder(const Bytes& from, const Bytes& to) {
  struct stat source;
  if (::lstat(from.c_str(), &source) != 0) return errno;
  const bool folder = S_ISDIR(source.st_mode);
  if (folder) {
    if (::mkdir(to.c_str(), 0700) != 0) return errno;
  } else {
    const Descriptor placeholder(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!placeholder.valid()) return errno;
  }
  if (::rename(from.c_str(), to.c_str()) == 0) return 0;
  const int code = errno;
  struct stat status;
  if (folder) {
    ::rmdir(to.c_str());
  } else if (::lstat(to.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0) {
    ::unlink(to.c_str());
  }
  return code;
}

int renameByLink(const Bytes& from, const Bytes& to) {
  struct stat status;
  if (::lstat(from.c_str(), &status) != 0) return errno;
  if (S_ISDIR(status.st_mode)) return renameOverPlaceholder(from, to);
  if (::link(from.c_str(), to.c_str()) == 0) {
    if (::unlink(from.c_str()) == 0) return 0;
    const int code = errno;
    ::unlink(to.c_str());
    return code;
  }
  switch (errno) {
    case EPERM:
    case EOPNOTSUPP:
    case ENOSYS:
    case EMLINK:
      return renameOverPlaceholder(from, to);
    default:
      return errno;
  }
}

int renameNoReplace(const Bytes& from, const Bytes& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  return errno == EINVAL || errno == ENOSYS ? renameByLink(from, to) : errno;
}

void moveEntry(const Bytes& from, const Bytes& to, const std::function<void()>& beforeRemoval) {
  if (from == to) {
    struct stat status;
    if (::lstat(from.c_str(), &status) != 0) throwErrno(from);
    return;
  }
  if (to.starts_with(from + '/')) throw FileError(FileError::pathAccess);  // a folder into itself
  const int code = renameNoReplace(from, to);
  if (code == EXDEV) moveAcross(from, to, beforeRemoval);
  if (code == 0 || code == EXDEV) {
    keepLead(from, to);
  } else if (code == EEXIST && onlyRespelled(from, to)) {
    respell(from, to);
  } else {
    struct stat status;
    throwFileError(code, code == ENOENT && ::lstat(from.c_str(), &status) == 0 ? to : from);
  }
}

void replaceFile(const Bytes& from, const Bytes& to) {
  const Bytes target = resolved(to);
  Descriptor finished(untilDone([&] { return ::open(from.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
  if (!finished.valid()) throwErrno(from);
  struct stat old;
  if (::stat(target.c_str(), &old) == 0) {
    if (!S_ISREG(old.st_mode)) throw FileError(FileError::pathAccess);
    const bool readOnly = (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    if (readOnly || ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
      throw FileError(FileError::permissionDenied);
    // A change of them that is none would only cost the disk another round.
    struct stat made;
    if (::fstat(finished.get(), &made) != 0) throwErrno(from);
    if (made.st_mode != old.st_mode || made.st_uid != old.st_uid || made.st_gid != old.st_gid)
      takeModeAndOwner(finished.get(), old);
    const Descriptor song(
        untilDone([&] { return ::open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    if (song.valid()) takeAttributes(finished.get(), song.get());
  }
  if (untilDone([&] { return ::fsync(finished.get()); }) != 0) throwErrno(from);
  if (::rename(from.c_str(), target.c_str()) == 0) return;
  if (errno != EXDEV) throwErrno(target);

  // `to` is a link into another volume: the new content must first be brought there.
  UnfinishedCopy copy(temporaryBeside(target));
  copyEntry(from, copy.path());
  if (::rename(copy.path().c_str(), target.c_str()) != 0) throwErrno(target);
  copy.keep();
  if (::unlink(from.c_str()) != 0) throwErrno(from);
}

}  // namespace velmora::system
