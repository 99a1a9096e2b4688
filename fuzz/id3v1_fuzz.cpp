#include <algorithm>

#include "fuzz/memory_files.h"
#include "fuzz/target.h"
#include "tags/id3v1.h"
#include "tests/support/scripted_dialogs.h"

using velmora::Bytes;
using velmora::Text;
using velmora::fuzz::require;
namespace tags = velmora::tags;

namespace {

bool isClean(const Text& text, std::size_t width) {
  return text.size() <= width &&
         std::ranges::all_of(text, [](char16_t character) { return character >= 32 && character <= 126; });
}

}  // namespace

VELMORA_FUZZ_TARGET(id3v1) {
  velmora::fuzz::MemoryFiles files;
  files.put(u"song.mp3", bytes);
  tags::cMP3ID3v1 tag(files);
  tag.setMP3File(u"song.mp3");
  require(isClean(tag.Title, 30) && isClean(tag.Artist, 30) && isClean(tag.Album, 30) &&
              isClean(tag.Year, 4) && isClean(tag.Comment, 28),
          "texts are printable and fit their fields");
  if (bytes.empty()) return;  // fails into a dialog

  velmora::test::ScriptedDialogs dialogs;
  velmora::ui::Failures failures(dialogs);
  const velmora::core::TrackTable table;
  tag.Update({failures, table});
  const Bytes after = files.get(u"song.mp3");
  const bool had = bytes.size() > 128 && bytes.substr(bytes.size() - 128).starts_with("TAG");
  require(tag.HasID3v1Tag() == had, "a tag is found exactly where one stands");
  if (bytes.size() <= 128) return require(after == bytes, "a short file is left alone");
  const std::size_t start = had ? bytes.size() - 128 : bytes.size() - 1;
  require(after.size() == start + 128, "the tag is the end of the file");
  require(after.starts_with(bytes.substr(0, start)), "all before it is as it was");

  tags::cMP3ID3v1 again(files);
  again.setMP3File(u"song.mp3");
  require(again.HasID3v1Tag() && again.Title == tag.Title && again.Artist == tag.Artist &&
              again.Album == tag.Album && again.Year == tag.Year && again.Comment == tag.Comment &&
              again.Track == tag.Track && again.Genre == tag.Genre,
          "what was written is read back");
}
