#include "tags/tag_cache.h"

#include <utility>

#include "core/number_text.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "tags/genre.h"
#include "tags/id3v1.h"
#include "tags/id3v2_names.h"
#include "tags/id3v2_place.h"
#include "tags/id3v2_text.h"

namespace velmora::tags {

namespace {

/// What the columns take of an ID3v2 tag.
struct Id3v2Values {
  bool found = false;
  Text title, artist, album, year, track, genre;

  Text* column(BytesView frame) {
    if (frame == "TIT2") return &title;
    if (frame == "TPE1") return &artist;
    if (frame == "TALB") return &album;
    if (frame == "TYER" || frame == "TDRC") return &year;
    if (frame == "TRCK") return &track;
    if (frame == "TCON") return &genre;
    return nullptr;
  }
};

Id3v2Values readId3v2(SongBytes& song) {
  Id3v2Values values;
  const auto tag = findTag(song);
  if (!tag) return values;
  values.found = true;
  FrameReader frames = framesOf(song, *tag);
  while (const auto frame = frames.next()) {
    const Bytes name = tag->version == 2 ? MapFrameID(frame->name) : frame->name;
    Text* column = values.column(name);
    if (!column || (column == &values.year && !givesYear(name, tag->version, values.year))) continue;
    Text text = shownText(name, frameText(name, tag->version, frame->flags, frames.body(*frame)));
    *column = column == &values.genre ? parseGenre(text, tag->version).name : std::move(text);
  }
  if (values.track == u"0") values.track.clear();
  return values;
}

void store(core::Track& track, cMP3ID3v1 tag) {
  track.imaid3v1 = tag.HasID3v1Tag();
  if (!tag.HasID3v1Tag()) return;
  track.pesmaid3v1 = std::move(tag.Title);
  track.pevacID3v1 = std::move(tag.Artist);
  track.albumid3v1 = std::move(tag.Album);
  track.brojtrakeid3v1 = tag.Track == 0 ? Text() : core::number(std::int64_t{tag.Track});
  track.godinaid3v1 = std::move(tag.Year);
  track.vrstaid3v1 = GenreName(tag.Genre);
}

void store(core::Track& track, Id3v2Values tag) {
  track.imaid3v2 = tag.found;
  if (!tag.found) return;
  track.pesmaid3v2 = std::move(tag.title);
  track.pevacID3v2 = std::move(tag.artist);
  track.albumid3v2 = std::move(tag.album);
  track.brojtrakeid3v2 = std::move(tag.track);
  track.godinaid3v2 = std::move(tag.year);
  track.vrstaid3v2 = std::move(tag.genre);
}

}  // namespace

bool TagCache::read(const Text& path, int row, std::optional<std::uint64_t>* bytes) {
  if (table_.track(row).procitan.isTrue()) return true;
  try {
    const auto file = files_.open(path, platform::OpenMode::Read);
    SongBytes song(*file);
    if (bytes) *bytes = song.size();
    return read(song, row);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

bool TagCache::read(SongBytes& song, int row) {
  if (table_.track(row).procitan.isTrue()) return true;
  try {
    return readAnew(song, row);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

bool TagCache::readAnew(SongBytes& song, int row) {
  if (song.size() == 0) return false;
  core::Track& track = table_.track(row);
  // Both are read before either is stored. The start comes first, since a small song is then read at once.
  Id3v2Values second = readId3v2(song);
  cMP3ID3v1 first(files_);
  first.read(song);
  store(track, std::move(first));
  store(track, std::move(second));
  track.procitan = true;
  return true;
}

}  // namespace velmora::tags
