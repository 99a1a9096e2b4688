#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/text.h"
#include "tags/id3v2_header.h"
#include "tags/song_bytes.h"

/// How an ID3v2 tag is taken apart. Both the tag class, which keeps every frame, and the tag cache, which
/// wants six of them, read through here.
namespace velmora::tags {

/// Walks the frames of a tag; `framesOf` makes one that stays within the tag's real end.
class FrameReader {
 public:
  struct Found {
    Bytes name;            ///< as it stands in the tag: three characters in version 2
    std::uint16_t flags;   ///< of the version of the tag, less the mark of unsynchronisation, which is undone
    std::uint64_t offset;  ///< of the body
    std::size_t length;    ///< of the body
    bool unsynchronised;   ///< the body has to be decoded
  };

  /// Tells where a tag ends.
  using RealEnd = std::uint64_t (*)(SongBytes& song, const TagHeader& tag);
  /// Takes the frames that end at `limit` at the latest for those of the tag, of which there are none where
  /// it cannot be read. Where one passes the limit `realEnd`, when given, is asked for a later one, once.
  FrameReader(SongBytes& song, const TagHeader& tag, std::uint64_t limit, RealEnd realEnd = nullptr);

  /// The next frame in the tag, or nothing at the end of those that can be read.
  std::optional<Found> next();
  /// The body of a frame, unsynchronisation undone. Good until the next call.
  BytesView body(const Found& frame);
  /// Where the frames found so far end.
  std::uint64_t position() const { return at_; }
  /// What stands behind the last frame and is no padding: such as a frame that claims more than there is.
  /// To be asked for when there is no further frame. Good until the next call.
  BytesView tail();

 private:
  void skipExtendedHeader();
  BytesView view(std::uint64_t offset, std::size_t count);
  bool reaches(std::uint64_t end);
  std::uint64_t frameSize(BytesView header);
  bool endsWell(std::uint64_t offset);

  SongBytes& song_;
  const TagHeader tag_;
  std::uint64_t at_;
  std::uint64_t limit_;           // of what may be read so far
  RealEnd realEnd_;               // nullptr when the limit is the last word
  std::optional<Bytes> decoded_;  // all behind the header, of a version 2 or 3 tag that is unsynchronised
  Bytes body_;
};

/// Where the frames of a tag end that end at `limit` at the latest. Of a tag that is unsynchronised as a
/// whole: just behind its header.
std::uint64_t framesEnd(SongBytes& song, const TagHeader& tag, std::uint64_t limit);

/// Whether three or four bytes may be the name of a frame.
bool isFrameName(BytesView name);

/// Takes the bytes 0 out that keep an FF from looking like the start of an audio frame.
Bytes undoUnsynchronisation(BytesView bytes);

}  // namespace velmora::tags
