#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/id3v2_frames.h"
#include "tags/update_result.h"

namespace velmora::tags {

/// The ID3v2 tag of one file: read in version 2, 3 or 4, written in version 3. Sizes are plain 32-bit
/// numbers, text is single-byte; docs/formats.md tells where this departs from the published format.
class cMP3ID3v2 {
 public:
  explicit cMP3ID3v2(platform::Files& files) : files_(files) {}

  /// Binds the file and reads its tag. Throws FileError when it cannot be opened.
  void setMP3File(const Text& path);
  /// The same for a file that is open already; `path` is what Update writes to.
  void read(platform::OpenFile& file, const Text& path);
  const Text& MP3File() const { return path_; }

  bool HasID3v2Tag() const { return hasTag_; }
  std::uint8_t ID3v2TagVersion() const { return version_; }
  std::uint8_t TagVersion() const { return version_; }

  // The frame table. Positions of identifiers and of tags count from 1.
  int FrameCount() const { return frames_.count(); }
  const Text& Frame(int index) const { return frames_.name(index); }
  void RemoveFrame(const Text& frame);
  int TagsInFrame(const Text& frame) const { return frames_.tags(frame); }
  void AddTag(const Text& frame, const Text& body) { frames_.add(frame, body); }
  void RemoveTag(const Text& frame, int index) { frames_.removeTag(frame, index); }
  const Text& TagText(const Text& frame, int index) const { return frames_.body(frame, index); }

  // Properties: the value last read or set. Setting one replaces its frame.
  const Text& Title() const;
  const Text& Artist() const;
  const Text& Album() const;
  const Text& Year() const;
  const Text& Track() const;
  const Text& Comment() const;
  const Text& Lyrics() const;
  const Text& Composer() const;
  const Text& Copyright() const;
  const Text& OriginalArtist() const;
  const Text& EncodedBy() const;
  const Text& PlayCounter() const;
  const Text& ArtistURL() const;
  const Text& BuyURL() const;
  const Text& AudioURL() const;
  const Text& LinkTo() const;
  const Text& OtherGenreName() const;
  std::uint8_t Genre() const;

  void setTitle(const Text& value);
  // ... one setter per property.

  /// Writes the frame table to the file.
  UpdateResult Update(const UpdateContext& context);

 private:
  platform::Files& files_;
  Text path_;
  bool hasTag_ = false;
  std::uint8_t version_ = 0;
  FrameTable frames_;
};

}  // namespace velmora::tags
