#pragma once

#include <cstdint>
#include <memory>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::tags {

/// A new file beside a song that is to take its place. It never overwrites: where its name is taken, by a
/// song or by what a crash left behind, the name gets a number. Unless it took the song's place, it is
/// removed when the object goes.
class SideFile {
 public:
  /// `stem` + `ending` is the wanted name, in the folder of `song`. Throws FileError when it cannot be made.
  SideFile(platform::Files& files, Text song, TextView stem, TextView ending);
  ~SideFile();
  SideFile(const SideFile&) = delete;
  SideFile& operator=(const SideFile&) = delete;

  /// Adds to the end.
  void write(BytesView bytes);
  /// Takes the song's place in one step, with its mode and owner, once all is on the disk. The song must be
  /// closed. Throws FileError, also where the song is not the one any more that `stamp` was taken of; the
  /// song is then as it was.
  void takePlace(const platform::FileStamp& stamp);

 private:
  platform::Files& files_;
  Text song_;
  Text path_;
  std::unique_ptr<platform::OpenFile> file_;
  std::uint64_t size_ = 0;
};

}  // namespace velmora::tags
