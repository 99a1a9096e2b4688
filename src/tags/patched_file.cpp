#include "tags/patched_file.h"

#include <algorithm>

#include "platform/file_error.h"

namespace velmora::tags {

/// Some of the bytes at `offset`; none at the end.
BytesView PatchedFile::at(std::uint64_t offset, std::size_t count) {
  if (offset < from_)
    return song_.at(offset, static_cast<std::size_t>(std::min<std::uint64_t>(count, from_ - offset)));
  offset -= from_;
  if (offset < patch_.size()) return patch_.substr(static_cast<std::size_t>(offset), count);
  return song_.at(to_ + offset - patch_.size(), count);
}

std::size_t PatchedFile::readAt(std::uint64_t offset, std::span<char> into) {
  std::size_t done = 0;
  while (done < into.size()) {
    const BytesView bytes = at(offset + done, into.size() - done);
    if (bytes.empty()) break;
    done += bytes.copy(into.data() + done, into.size() - done);
  }
  return done;
}

void PatchedFile::writeAt(std::uint64_t, BytesView) {
  throw platform::FileError(platform::FileError::permissionDenied);
}

void PatchedFile::cutTo(std::uint64_t) {
  throw platform::FileError(platform::FileError::permissionDenied);
}

}  // namespace velmora::tags
