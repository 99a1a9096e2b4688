#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/text.h"

/// Makes the bytes of songs: audio that any decoder plays, and the tags that other programs write. Tests and
/// the corpus maker take their songs from here.
namespace velmora::test {

/// Header of an MPEG-1 layer 3 frame: 128 kbps, 44,100 Hz, stereo, without checksum and padding.
inline constexpr BytesView mpegHeader("\xFF\xFB\x90\0", 4);
/// Whole silent frames with that header; 38 of them play a second.
Bytes mpegFrames(int frames = 40);

/// The values of a tag; an empty one is left out.
struct SongTags {
  Text title{}, artist{}, album{}, year{};
  int track = 0;
  Text genre{};  ///< as it stands in the tag, such as "Rock" or "(17)"
};

/// The 128 bytes of an ID3v1 tag in the track form.
Bytes id3v1Tag(const SongTags& tags, int genre = 255, TextView comment = {});

enum class TagEncoding { Latin1 = 0, Utf16 = 1, Utf8 = 3 };

/// Builds an ID3v2 tag by the published format: synchsafe tag size, in version 4 synchsafe frame sizes too,
/// an encoding byte ahead of each text.
class Id3v2Maker {
 public:
  /// `version` is 2, 3 or 4; frame names have three characters in version 2.
  explicit Id3v2Maker(int version = 3, TagEncoding encoding = TagEncoding::Latin1);

  /// All values of `tags` under the names of the version.
  Id3v2Maker& values(const SongTags& tags);
  Id3v2Maker& text(BytesView frame, TextView value);
  /// A comment in English without a description.
  Id3v2Maker& comment(TextView value);
  /// A picture frame with about `bytes` of content.
  Id3v2Maker& picture(std::size_t bytes);
  /// A frame with just this body.
  Id3v2Maker& frame(BytesView name, BytesView body);
  Id3v2Maker& padding(std::size_t bytes);

  /// The whole tag.
  Bytes bytes() const;
  /// The same with all sizes as plain 32-bit numbers, the way this program writes and reads them.
  Bytes plainBytes() const;

 private:
  Bytes assemble(bool plain) const;
  Bytes encoded(TextView value) const;

  struct Frame {
    Bytes name;
    Bytes body;
  };
  int version_;
  TagEncoding encoding_;
  std::vector<Frame> frames_;
  std::size_t padding_ = 0;
};

/// 4 bytes, the most significant first; with 7 bits in each for a synchsafe number.
Bytes plain32(std::uint32_t number);
Bytes synchsafe32(std::uint32_t number);

}  // namespace velmora::test
