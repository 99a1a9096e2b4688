#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/update_result.h"

namespace velmora::tags {

/// The 128-byte tag at the end of one file. Written in its track form; on a file without one it begins on the
/// file's last byte.
class cMP3ID3v1 {
 public:
  explicit cMP3ID3v1(platform::Files& files) : files_(files) {}

  /// Binds the file and reads its tag. Throws FileError when it cannot be opened.
  void setMP3File(const Text& path);
  /// The same for a file that is open already; `path` is what Update writes to.
  void read(platform::OpenFile& file, const Text& path);
  const Text& MP3File() const { return path_; }

  /// Writes the fields to the file. A file of 128 bytes or less is left untouched; one of no bytes at all
  /// fails.
  UpdateResult Update(const UpdateContext& context);

  bool HasID3v1Tag() const { return hasTag_; }

  Text Title, Artist, Album, Year;
  std::uint8_t Track = 0;
  Text Comment;
  std::uint8_t Genre = 255;

 private:
  void reset();
  void write();

  platform::Files& files_;
  Text path_;
  bool hasTag_ = false;
};

}  // namespace velmora::tags
