#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

/// The first MPEG audio frame header of a file. Deliberately naive: the first byte 0xFF behind a leading tag
/// is taken as the frame, and the playing time comes from the file's size. An MPEG-2 file reports no bit
/// rate.
class clsMP3HeadReader {
 public:
  Text MPEG;                 ///< "MPEG-1", "MPEG-2" or empty
  std::uint8_t Layer = 0;    ///< 1, 2, 3 or 0
  bool IsProtected = false;  ///< the protection bit as it stands, the reverse of what the format means by it
  std::int32_t Bitrate = 0;  ///< kilobits per second, 0 when unknown
  std::int32_t Frequency = 0;  ///< hertz, 0 when unknown
  bool IsPrivate = false;
  Text Mode;  ///< "Stereo", "Joint Stereo", "Dual Channel", "Mono" or empty
  bool IsCopyright = false;
  std::int64_t Length = 0;  ///< seconds

  /// Fills the properties; any failure leaves them as they were, without a word.
  void ReadMP3Header(platform::Files& files, const Text& path);
  /// The same for a file that is open already. Throws FileError when reading fails.
  void read(SongBytes& song);

 private:
  void parse(std::uint32_t header, std::uint64_t audioBytes);
  void setBitrate(std::uint32_t index);
};

}  // namespace velmora::tags
