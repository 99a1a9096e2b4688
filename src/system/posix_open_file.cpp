#include "system/posix_open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

#include "system/posix_error.h"

namespace velmora::system {

PosixOpenFile::PosixOpenFile(Descriptor descriptor, Bytes path)
    : descriptor_(std::move(descriptor)), path_(std::move(path)) {}

std::uint64_t PosixOpenFile::size() {
  // Nothing here reads from a position of the descriptor's own, and this asks the least of the system.
  const off_t end = ::lseek(descriptor_.get(), 0, SEEK_END);
  if (end < 0) throwErrno(path_);
  return static_cast<std::uint64_t>(end);
}

std::size_t PosixOpenFile::readAt(std::uint64_t offset, std::span<char> into) {
  std::size_t done = 0;
  while (done < into.size()) {
    const ssize_t count = untilDone([&] {
      return ::pread(descriptor_.get(), into.data() + done, into.size() - done,
                     static_cast<off_t>(offset + done));
    });
    if (count < 0) throwErrno(path_);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return done;
}

void PosixOpenFile::writeAt(std::uint64_t offset, BytesView bytes) {
  if (const int code = writeFully(descriptor_.get(), bytes, offset)) throwFileError(code, path_);
}

void PosixOpenFile::cutTo(std::uint64_t bytes) {
  if (bytes >= size()) return;
  if (untilDone([&] { return ::ftruncate(descriptor_.get(), static_cast<off_t>(bytes)); }) != 0)
    throwErrno(path_);
}

void PosixOpenFile::flush() {
  if (untilDone([&] { return ::fsync(descriptor_.get()); }) != 0) throwErrno(path_);
}

platform::FileStamp PosixOpenFile::stamp() {
  struct stat status;
  if (::fstat(descriptor_.get(), &status) != 0) throwErrno(path_);
  return stampOf(status);
}

platform::FileStamp stampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

bool lockWhole(int descriptor) {
  if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  struct flock whole = {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return ::fcntl(descriptor, F_OFD_SETLK, &whole) == 0 || (errno != EAGAIN && errno != EACCES);
}

int writeFully(int descriptor, BytesView bytes, std::uint64_t offset) {
  while (!bytes.empty()) {
    const ssize_t count = untilDone(
        [&] { return ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset)); });
    if (count < 0) return errno;
    if (count == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(count));
    offset += static_cast<std::uint64_t>(count);
  }
  return 0;
}

}  // namespace velmora::system
