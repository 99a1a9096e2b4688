#include "tags/side_file.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::tags {

namespace {

constexpr std::size_t longestName = 255;  // bytes, on every file system in use
constexpr int names = 1000;

/// `stem`, the number and `ending`, the stem cut where the name would be too long for a file system.
Text fittingName(TextView stem, TextView ending, int number) {
  const Text rest = (number > 1 ? core::plain(std::int64_t{number}) : Text()) + Text(ending);
  const std::size_t room = longestName - core::toBytes(rest).size();
  Text start(stem);
  while (core::toBytes(start).size() > room) start.pop_back();
  return start + rest;
}

}  // namespace

SideFile::SideFile(platform::Files& files, Text song, TextView stem, TextView ending)
    : files_(files), song_(std::move(song)) {
  const TextView folder = core::paths::folderPart(song_);
  for (int number = 1; !file_; ++number) {
    path_ = Text(folder) + fittingName(stem, ending, number);
    try {
      file_ = files_.create(path_);
    } catch (const platform::FileError& error) {
      if (error.number != platform::FileError::fileExists || number == names) throw;
    }
  }
}

SideFile::~SideFile() {
  if (!file_) return;
  file_.reset();
  try {
    files_.remove(path_);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // It stays beside the song, and the next one gets another name.
  }
}

void SideFile::write(BytesView bytes) {
  if (bytes.empty()) return;
  file_->writeAt(size_, bytes);
  size_ += bytes.size();
}

void SideFile::takePlace(const platform::FileStamp& stamp) {
  file_->flush();  // which may take long: the look at the song comes behind it
  if (files_.stamp(song_) != stamp)
    throw platform::FileError(platform::FileError::deviceError, u"Another program has changed the file");
  files_.replace(path_, song_);
  file_.reset();
}

}  // namespace velmora::tags
