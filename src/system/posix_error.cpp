#include "system/posix_error.h"

#include <cerrno>
#include <sys/stat.h>

#include "core/text.h"
#include "platform/file_error.h"

namespace velmora::system {

using platform::FileError;

Bytes nativePath(const Text& path) {
  Bytes native = core::toBytes(path);
  if (native.find('\0') != Bytes::npos) throw FileError(FileError::pathNotFound);
  return native;
}

Bytes parentOf(const Bytes& path) {
  const std::size_t end = path.find_last_not_of('/');
  if (end == Bytes::npos) return path.empty() ? "." : "/";
  const std::size_t cut = path.rfind('/', end);
  if (cut == Bytes::npos) return ".";
  const std::size_t last = path.find_last_not_of('/', cut);
  return last == Bytes::npos ? "/" : path.substr(0, last + 1);
}

namespace {

bool parentMissing(const Bytes& path) {
  struct stat status;
  return ::stat(parentOf(path).c_str(), &status) != 0 || !S_ISDIR(status.st_mode);
}

int numberOf(int code, const Bytes& path) {
  switch (code) {
    case ENOENT:
      return parentMissing(path) ? FileError::pathNotFound : FileError::fileNotFound;
    case ENOTDIR:
      return FileError::pathNotFound;
    case EEXIST:
      return FileError::fileExists;
    case ENOSPC:
    case EDQUOT:
      return FileError::diskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return FileError::permissionDenied;
    case EISDIR:
    case ENOTEMPTY:
    case EBUSY:
    case ETXTBSY:
      return FileError::pathAccess;
    default:
      return FileError::deviceError;
  }
}

/// What is wrong, where the number alone would not tell; empty otherwise.
TextView causeOf(int code) {
  switch (code) {
    case ENAMETOOLONG:
      return u"File name too long";
    case EINVAL:
    case EILSEQ:
      return u"Name not allowed on this disk";
    case ELOOP:
      return u"Link that leads in a circle";
    case EFBIG:
      return u"File too large for this disk";
    case EMFILE:
    case ENFILE:
      return u"Too many files are open";
    case ENOMEM:
      return u"Out of memory";
    case ENOTSUP:
    case ENOSYS:
      return u"This disk cannot do that";
    case EXDEV:
      return u"Other disk";
    case ENXIO:
    case ENODEV:
      return u"Disk not ready";
    case ESTALE:
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENETDOWN:
    case ENETUNREACH:
    case ETIMEDOUT:
      return u"Network disk does not answer";
    default:
      return {};
  }
}

}  // namespace

void throwFileError(int code, const Bytes& path) {
  const int number = numberOf(code, path);
  const TextView cause = number == FileError::deviceError ? causeOf(code) : TextView();
  throw cause.empty() ? FileError(number) : FileError(number, Text(cause));
}

void throwErrno(const Bytes& path) {
  throwFileError(errno, path);
}

}  // namespace velmora::system
