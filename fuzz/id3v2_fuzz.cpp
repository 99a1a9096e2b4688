#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <vector>

#include "fuzz/memory_files.h"
#include "fuzz/target.h"
#include "tags/id3v2.h"
#include "tags/id3v2_names.h"
#include "tags/id3v2_place.h"
#include "tags/tag_cache.h"
#include "tags/tag_removal.h"
#include "tests/support/memory_file.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_dialogs.h"

using velmora::Bytes;
using velmora::BytesView;
using velmora::Text;
using velmora::TextView;
using velmora::fuzz::require;
namespace platform = velmora::platform;
namespace tags = velmora::tags;
namespace test = velmora::test;

namespace {

/// The search for the marker, block by block over bytes in memory.
std::optional<std::size_t> searchedInBlocks(BytesView bytes) {
  for (std::size_t start = 0; start < bytes.size(); start += 4093) {
    const bool last = start + 4096 >= bytes.size();
    const BytesView block = bytes.substr(start, last ? bytes.size() - start - 1 : 4096);
    if (const auto found = block.find("ID3"); found != BytesView::npos) return start + found + 3;
    if (last || block.find("\xFF\xFB") != BytesView::npos) break;
  }
  return {};
}

/// What stands in a song: the tag's place, its frames, and what is broken behind them.
struct Layout {
  using RawFrame = std::tuple<Bytes, std::uint16_t, Bytes>;
  bool found = false;
  int version = 0;
  std::uint64_t start = 0;
  std::uint64_t end = 0;
  std::vector<RawFrame> frames;
  bool broken = false;

  explicit Layout(BytesView bytes) {
    test::MemoryFile file{Bytes(bytes)};
    tags::SongBytes song(file);
    require(tags::FindID3Position(song) == searchedInBlocks(bytes), "reading ahead finds the same marker");
    const auto tag = tags::findTag(song);
    if (!tag || !tag->readable()) return;
    found = true;
    version = tag->version;
    start = tag->start;
    end = tags::tagEnd(song, *tag);
    require(end > start && end <= bytes.size(), "a tag ends within its file");
    tags::FrameReader reader = tags::framesOf(song, *tag);
    while (const auto frame = reader.next()) {
      const Bytes body(reader.body(*frame));
      if (version == 2)
        frames.emplace_back(tags::MapFrameID(frame->name), 0, tags::mapFrameBody(frame->name, body));
      else
        frames.emplace_back(frame->name, frame->flags, body);
    }
    broken = !reader.tail().empty();
  }
};

void requireSameAsCache(platform::Files& files, const tags::cMP3ID3v2& tag, BytesView bytes) {
  velmora::core::TrackTable table;
  table.appendPath(u"song.mp3");
  table.resizeColumns();
  tags::TagCache cache(table, files);
  require(cache.read(u"song.mp3", 1) == !bytes.empty(), "every song that has bytes is read");
  const velmora::core::Track& track = table.track(1);
  require(track.imaid3v2.isTrue() == tag.HasID3v2Tag() && track.pesmaid3v2.text() == tag.Title() &&
              track.pevacID3v2.text() == tag.Artist() && track.albumid3v2.text() == tag.Album() &&
              track.godinaid3v2.text() == tag.Year() && track.vrstaid3v2.text() == tag.OtherGenreName(),
          "the cache sees what the tag sees");
}

/// Sets the title, and requires that nothing else of the song changes.
void requireOnlyTitleChanges(velmora::fuzz::MemoryFiles& files, const Bytes& before, const Text& title) {
  const Layout old(before);
  tags::cMP3ID3v2 tag(files);
  tag.setMP3File(u"song.mp3");
  const bool same = tag.Title() == title;
  tag.setTitle(title);
  test::ScriptedDialogs dialogs;
  dialogs.otherwise = [](platform::Buttons) { return platform::Answer::Ignore; };
  velmora::ui::Failures failures(dialogs);
  const velmora::core::TrackTable table;
  const bool done = tag.Update({failures, table}) == tags::UpdateResult::Done;
  const Bytes after = files.get(u"song.mp3");
  require(files.contents.size() == 1, "nothing stays beside the song");
  if (same || !done) return require(after == before, "what is not to be changed is not touched");

  const Layout now(after);
  const BytesView head = BytesView(before).substr(0, old.start), music = BytesView(before).substr(old.end);
  require(now.found && now.start == old.start && now.version == (old.version == 4 ? 4 : 3),
          "the tag keeps its place");
  require(after.starts_with(head) && BytesView(after).substr(now.end) == music, "the music is intact");
  if (old.broken) return;
  auto wanted = old.frames;
  std::erase_if(wanted, [](const Layout::RawFrame& frame) { return std::get<0>(frame) == "TIT2"; });
  require(now.frames.size() == wanted.size() + (title.empty() ? 0 : 1) &&
              std::equal(wanted.begin(), wanted.end(), now.frames.begin()),
          "the other frames are intact");
  tags::cMP3ID3v2 again(files);
  again.setMP3File(u"song.mp3");
  require(again.Title() == title, "the title reads as it was set");
}

}  // namespace

VELMORA_FUZZ_TARGET(id3v2) {
  velmora::fuzz::MemoryFiles files;
  files.put(u"song.mp3", bytes);
  tags::cMP3ID3v2 tag(files);
  tag.setMP3File(u"song.mp3");
  requireSameAsCache(files, tag, bytes);
  if (bytes.empty()) return;

  const bool had = tag.HasID3v2Tag();
  for (const Text& title : {Text(u"Song"), Text(u"жук;\u00A0Žal"), Text(3000, u'x'), Text()})
    requireOnlyTitleChanges(files, files.get(u"song.mp3"), title);
  if (had) return;

  test::ScriptedDesktop desktop;
  platform::NoFileHolder player;
  velmora::ui::Label label;
  tags::BusyFile busyFile(files, desktop, label);
  tags::SkiniID3v2({files, desktop, player, busyFile}, u"song.mp3");
  require(files.get(u"song.mp3") == bytes, "a tag that was made goes whole");
}
