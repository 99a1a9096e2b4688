#include "tags/update_tags.h"

#include <cstdint>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "platform/file_error.h"
#include "tags/genre.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"

namespace velmora::tags {

namespace {

constexpr int pauseBelowVersion = 260;  // older systems need a moment after a file was let go
constexpr int pauseMilliseconds = 100;
constexpr std::uint8_t noGenre = 255;

/// Reads the tag that is to be changed. A tag that cannot be read must not be written either, since all that
/// the panel does not show would be lost: its failure is asked about like one of the write.
template <typename Tag>
bool bind(Tag& tag, TextView version, const UpdateContext& context, OpenSong& song) {
  bool read = false;
  updateWithDialog(context, version, song, [&] {
    tag.read(song.bytes());
    read = true;
  });
  return read;
}

bool blank(const Text& text) {
  return core::trim(text).empty();
}

std::uint8_t trackByte(double track) {
  const double rounded = core::roundHalfEven(track);
  return rounded >= 0 && rounded <= 255 ? static_cast<std::uint8_t>(rounded) : std::uint8_t{0};
}

}  // namespace

void TagWriter::UpdateTags() {
  if (!parts_.table.hasRow(parts_.table.currentRow)) return;
  OpenSong song(parts_.files, parts_.table.path(parts_.table.currentRow));
  UpdateTags(song);
}

void TagWriter::UpdateTags(OpenSong& song) {
  const int row = parts_.table.currentRow;
  const Text& path = song.path();
  const platform::FileHandOver handOver(parts_.player, path);
  if (handOver.held() && parts_.desktop.systemVersion() < pauseBelowVersion)
    parts_.desktop.sleep(pauseMilliseconds);
  if (!parts_.busyFile.waitUntilFree(song)) return;
  if (core::paths::lastThree(path) != u"mp3") return;
  try {
    if (!song.isOpen()) parts_.files.clearAttributes(path);
  } catch (const platform::FileError&) {
    // What keeps the file from being written shows in the dialog of the write.
  }
  const Text before = journal::rowSnapshot(parts_.table, row);
  if (!writeTags(song, row, handOver.held())) return;
  if (onWritten) onWritten(row, before);
  showAgain(song, row);
}

bool TagWriter::writeTags(OpenSong& song, int row, bool released) {
  ui::TagPanel& panel = parts_.form1.tags;
  const bool toID3v1 = panel.writeID3v1.checked();
  const bool toID3v2 = panel.writeID3v2.checked();
  if (toID3v1) {
    if (!writeID3v1(song, row)) return false;
    if (!released && parts_.desktop.systemVersion() < pauseBelowVersion)
      parts_.desktop.sleep(pauseMilliseconds);
  }
  if (toID3v2 && !panel.viewID3v2.enabled()) showNewID3v2(row);
  panel.writeID3v1.setChecked(toID3v1);
  panel.writeID3v2.setChecked(toID3v2);
  return !toID3v2 || writeID3v2(song, row);
}

bool TagWriter::writeID3v1(OpenSong& song, int row) {
  const ui::TagPanel& panel = parts_.form1.tags;
  const UpdateContext context{parts_.dialogs, parts_.table};
  cMP3ID3v1 tag(parts_.files);
  if (!bind(tag, u"V1", context, song)) return false;
  tag.Title = panel.title.text();
  tag.Artist = panel.artist.text();
  tag.Album = panel.album.text();
  tag.Track = trackByte(takeTrack());
  tag.Year = panel.year.text();
  if (blank(panel.genre.text()))
    tag.Genre = noGenre;
  else if (const auto code = genreCode(panel.genre.text()))
    tag.Genre = static_cast<std::uint8_t>(*code);
  if (tag.Update(context, song) != UpdateResult::Done) return false;
  parts_.table.track(row).procitan = false;
  return true;
}

double TagWriter::takeTrack() {
  ui::TextBox& box = parts_.form1.tags.track;
  const double track = core::value(box.text());
  if (track == 0) box.setText({});
  return track;
}

void TagWriter::showNewID3v2(int row) {
  ui::TagPanel& panel = parts_.form1.tags;
  core::Track& track = parts_.table.track(row);
  track.pesmaid3v2 = panel.title.text();
  track.pevacID3v2 = panel.artist.text();
  track.albumid3v2 = panel.album.text();
  track.brojtrakeid3v2 = panel.track.text();
  track.godinaid3v2 = panel.year.text();
  track.vrstaid3v2 = panel.genre.text();
  track.imaid3v2 = true;
  track.procitan = false;  // the file does not say so yet
  panel.viewID3v2.setEnabled(true);
  panel.viewID3v2.setChosen(true);
}

bool TagWriter::writeID3v2(OpenSong& song, int row) {
  const ui::TagPanel& panel = parts_.form1.tags;
  const UpdateContext context{parts_.dialogs, parts_.table};
  cMP3ID3v2 tag(parts_.files);
  if (!bind(tag, u"V2", context, song)) return false;
  tag.setTitle(panel.title.text());
  tag.setArtist(panel.artist.text());
  tag.setAlbum(panel.album.text());
  const Text track = panel.track.text().empty() ? Text(u"0") : panel.track.text();
  takeTrack();
  tag.setTrack(track);
  tag.setYear(panel.year.text());
  const Text& genre = panel.genre.text();
  if (blank(genre))
    tag.setGenre(noGenre);
  else if (const auto code = genreCode(genre))
    tag.setGenre(static_cast<std::uint8_t>(*code));
  else
    tag.setOtherGenreName(genre);
  if (tag.Update(context, song) != UpdateResult::Done) return false;
  parts_.table.track(row).procitan = false;
  return true;
}

void TagWriter::showAgain(OpenSong& song, int row) {
  ui::TagPanel& panel = parts_.form1.tags;
  const bool toID3v1 = panel.writeID3v1.checked();
  const bool toID3v2 = panel.writeID3v2.checked();
  const bool viewedID3v1 = panel.viewID3v1.chosen();
  const bool viewedID3v2 = panel.viewID3v2.chosen();
  parts_.panel.info(song, row);
  if (viewedID3v1 && panel.viewID3v1.enabled()) panel.viewID3v1.setChosen(true);
  if (viewedID3v2 && panel.viewID3v2.enabled()) panel.viewID3v2.setChosen(true);
  parts_.panel.showTags();
  panel.writeID3v1.setChecked(toID3v1);
  panel.writeID3v2.setChecked(toID3v2);
}

}  // namespace velmora::tags
