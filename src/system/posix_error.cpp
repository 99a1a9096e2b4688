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

}  // namespace

void throwFileError(int code, const Bytes& path) {
  throw FileError(numberOf(code, path));
}

void throwErrno(const Bytes& path) {
  throwFileError(errno, path);
}

}  // namespace velmora::system
