#include "fuzz/memory_files.h"
#include "fuzz/target.h"
#include "tags/id3v1.h"
#include "tests/support/scripted_dialogs.h"

using velmora::Bytes;
using velmora::BytesView;
using velmora::fuzz::require;
namespace tags = velmora::tags;

VELMORA_FUZZ_TARGET(id3v1) {
  velmora::fuzz::MemoryFiles files;
  files.put(u"song.mp3", bytes);
  tags::cMP3ID3v1 tag(files);
  tag.setMP3File(u"song.mp3");
  require(tag.Title.size() <= 30 && tag.Artist.size() <= 30 && tag.Album.size() <= 30 &&
              tag.Year.size() <= 4 && tag.Comment.size() <= 28,
          "texts fit their fields");
  if (bytes.empty()) return;  // fails into a dialog

  const bool had = bytes.size() > 128 && bytes.substr(bytes.size() - 128).starts_with("TAG");
  require(tag.HasID3v1Tag() == had, "a tag is found exactly where one stands");
  velmora::test::ScriptedDialogs dialogs;
  velmora::ui::Failures failures(dialogs);
  const velmora::core::TrackTable table;
  if (had) {
    tag.Update({failures, table});
    require(files.get(u"song.mp3") == bytes, "what nobody changed is not touched");
  }
  tag.Album = u"Žal";
  tag.Update({failures, table});
  const Bytes after = files.get(u"song.mp3");
  if (bytes.size() <= 128) return require(after == bytes, "a short file is left alone");
  if (had) {
    const Bytes album = "\x8E" + Bytes("al") + Bytes(27, '\0');
    require(after == Bytes(bytes).replace(bytes.size() - 128 + 63, 30, album), "one field alone is written");
  } else {
    require(after.size() == bytes.size() + 128 && after.starts_with(bytes),
            "the tag stands behind the last byte");
  }
  tags::cMP3ID3v1 again(files);
  again.setMP3File(u"song.mp3");
  require(again.HasID3v1Tag() && again.Title == tag.Title && again.Artist == tag.Artist &&
              again.Album == u"Žal" && again.Year == tag.Year && again.Comment == tag.Comment &&
              again.Track == tag.Track && again.Genre == tag.Genre,
          "what was written is read back");
}
