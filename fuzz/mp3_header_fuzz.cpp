#include "fuzz/target.h"
#include "tags/id3v2_place.h"
#include "tags/mp3_header.h"
#include "tests/support/memory_file.h"

using velmora::BytesView;
using velmora::fuzz::require;
namespace tags = velmora::tags;

VELMORA_FUZZ_TARGET(mp3_header) {
  velmora::test::MemoryFile file{velmora::Bytes(bytes)};
  tags::SongBytes song(file);
  const auto tagEnd = tags::ID3TagEnd(song);
  tags::clsMP3HeadReader header;
  header.read(song);

  require(tagEnd <= bytes.size(), "the tag ends within the file");
  const auto frame = tagEnd < bytes.size() ? bytes.find('\xFF', tagEnd) : BytesView::npos;
  const bool whole = frame != BytesView::npos && bytes.size() - frame >= 4;
  require(header.MPEG.empty() != whole, "a header is read exactly where one stands");
  if (!whole) return;
  const bool mpeg1 = (bytes[frame + 1] & 8) != 0;
  require(header.MPEG == (mpeg1 ? u"MPEG-1" : u"MPEG-2"), "it is the first one behind the tag");
  require(mpeg1 || (header.Bitrate == 0 && header.Length == 0), "MPEG-2 shows neither rate nor length");
  require(header.Bitrate >= 0 && header.Bitrate <= 448 && header.Length >= 0, "numbers stay in their range");
}
