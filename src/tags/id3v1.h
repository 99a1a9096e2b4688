#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/song_bytes.h"
#include "tags/update_result.h"

namespace velmora::tags {

/// The 128-byte tag at the end of one file. On a file without one it goes behind the last byte, in the track
/// form; of one that is there only the fields are written that were changed. A file of 128 bytes or less has
/// none and gets none.
class cMP3ID3v1 {
 public:
  static constexpr std::size_t tagBytes = 128;

  explicit cMP3ID3v1(platform::Files& files) : files_(files) {}

  /// Binds the file and reads its tag. Throws FileError when it cannot be opened; the file is bound even
  /// then, with no tag.
  void setMP3File(const Text& path);
  /// Reads the tag of a song that is open already, which Update is then to be given.
  void read(SongBytes& song);
  const Text& MP3File() const { return path_; }

  /// Writes the fields that were changed since they were read, or a whole tag to a file without one. A file
  /// of 128 bytes or less is left untouched; one of no bytes at all fails.
  UpdateResult Update(const UpdateContext& context);
  /// The same through a song that may be open already.
  UpdateResult Update(const UpdateContext& context, OpenSong& song);

  bool HasID3v1Tag() const { return hasTag_; }

  // On reading, a byte 0 ends a text, and control characters are dropped; blanks at the end stay.
  Text Title, Artist, Album, Year;
  std::uint8_t Track = 0;
  Text Comment;
  std::uint8_t Genre = 255;

 private:
  struct Fields {
    Text title, artist, album, year, comment;
    std::uint8_t track = 0;
    std::uint8_t genre = 255;
  };
  Fields fields() const { return {Title, Artist, Album, Year, Comment, Track, Genre}; }
  void reset();
  void write(OpenSong& song) const;
  void putChanges(Bytes& tag) const;

  platform::Files& files_;
  Text path_;
  bool hasTag_ = false;
  Fields read_;  // as the file had them
};

}  // namespace velmora::tags
