#include "undo/tag_restorer.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/number_text.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "rows/listed_size.h"
#include "rows/row_keeper.h"
#include "tags/genre.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"
#include "tags/update_result.h"

namespace velmora::undo {

using platform::FileError;
using tags::UpdateResult;

namespace {

constexpr std::uint8_t noGenre = 255;

std::uint8_t trackByte(const Text& text) {
  const int track = core::intValue(text);
  return track >= 0 && track <= 255 ? static_cast<std::uint8_t>(track) : std::uint8_t{0};
}

/// Whether the tag holds anything that no command of ours writes, such as a picture.
bool holdsMore(const tags::cMP3ID3v2& tag) {
  static constexpr std::array<BytesView, 6> ours = {"TIT2", "TPE1", "TALB", "TYER", "TRCK", "TCON"};
  for (int index = 1; index <= tag.FrameCount(); ++index)
    if (std::ranges::find(ours, BytesView(tag.Frame(index))) == ours.end()) return true;
  return false;
}

/// Puts the values of the columns into the tag; false when it has them all already.
bool fill(tags::cMP3ID3v1& tag, const core::Track& track) {
  bool differs = !tag.HasID3v1Tag();
  const auto put = [&differs](auto& field, const auto& value) {
    if (field == value) return;
    field = value;
    differs = true;
  };
  put(tag.Title, track.pesmaid3v1.text());
  put(tag.Artist, track.pevacID3v1.text());
  put(tag.Album, track.albumid3v1.text());
  put(tag.Year, track.godinaid3v1.text());
  put(tag.Track, trackByte(track.brojtrakeid3v1.text()));
  const Text& genre = track.vrstaid3v1.text();
  if (genre != tags::GenreName(tag.Genre))
    if (const auto code = tags::genreCode(genre)) put(tag.Genre, static_cast<std::uint8_t>(*code));
  return differs;
}

/// Whether the tag tells the genre of the column. "Blues" cannot be looked up, and stays what it was changed
/// to.
bool genreIsBack(const tags::cMP3ID3v1& tag, const core::Track& track) {
  return tags::GenreName(tag.Genre) == track.vrstaid3v1.text();
}

bool genreIsBack(const tags::cMP3ID3v2&, const core::Track&) {
  return true;
}

void setGenre(tags::cMP3ID3v2& tag, const Text& genre) {
  if (genre.empty())
    tag.setGenre(noGenre);
  else if (const auto code = tags::genreCode(genre))
    tag.setGenre(static_cast<std::uint8_t>(*code));
  else
    tag.setOtherGenreName(genre);
}

bool fill(tags::cMP3ID3v2& tag, const core::Track& track) {
  using Tag = tags::cMP3ID3v2;
  bool differs = !tag.HasID3v2Tag();
  const auto put = [&](const Text& (Tag::*get)() const, void (Tag::*set)(const Text&), const Text& value) {
    if ((tag.*get)() == value) return;
    (tag.*set)(value);
    differs = true;
  };
  put(&Tag::Title, &Tag::setTitle, track.pesmaid3v2.text());
  put(&Tag::Artist, &Tag::setArtist, track.pevacID3v2.text());
  put(&Tag::Album, &Tag::setAlbum, track.albumid3v2.text());
  put(&Tag::Year, &Tag::setYear, track.godinaid3v2.text());
  put(&Tag::Track, &Tag::setTrack, track.brojtrakeid3v2.text());
  if (tag.OtherGenreName() != track.vrstaid3v2.text()) {
    setGenre(tag, track.vrstaid3v2.text());
    differs = true;
  }
  return differs;
}

}  // namespace

UndoOutcome TagRestorer::restore(int row, const journal::RowSnapshot& before) {
  core::Track& track = parts_.table.track(row);
  const Text path = track.nizdes.text();
  parts_.table.currentRow = row;  // the dialogs of a failure name its path
  // After a kill the columns know nothing of the file, and whatever tag it has is one that the write made.
  const bool askFile = before.procitan && !track.procitan.isTrue();
  const bool madeID3v1 = !before.imaid3v1 && (askFile || track.imaid3v1.isTrue());
  const bool madeID3v2 = !before.imaid3v2 && (askFile || track.imaid3v2.isTrue());
  rows::fillTags(track, before);
  if (!parts_.files.fileExists(path)) return UndoOutcome::Done;

  const platform::FileHandOver handOver(parts_.player, path);
  const rows::ListedSize size(parts_.table, parts_.files, row);
  // As long as such a tag is there its column says so, and an undo that is tried again finds it.
  track.imaid3v1 = before.imaid3v1 || madeID3v1;
  track.imaid3v2 = before.imaid3v2 || madeID3v2;
  if (madeID3v1) {
    if (!removeID3v1(path)) track.procitan = false;
    track.imaid3v1 = false;
  }
  if (madeID3v2) {
    bool mixed = false;
    if (!removeID3v2(path, mixed)) track.procitan = false;
    track.imaid3v2 = mixed;
  }
  const UndoOutcome outcome = writeTags(path, track);
  parts_.panel.info(path, row, tags::InfoMode::TagsOnly);
  return outcome;
}

/// The file is asked, not the column: after a crash that may speak of a tag that is gone already.
bool TagRestorer::removeID3v1(const Text& path) {
  bool removed = false;
  parts_.errors.attempt(path, [&] { removed = tags::SkiniID3v1(removalParts(), path); });
  return removed;
}

/// A tag that another program has put something into meanwhile stays, with our texts taken out of it.
bool TagRestorer::removeID3v2(const Text& path, bool& mixed) {
  bool removed = false;
  parts_.errors.attempt(path, [&] {
    tags::cMP3ID3v2 tag(parts_.files);
    tag.setMP3File(path);
    mixed = holdsMore(tag);
    removed = mixed || tags::SkiniID3v2(removalParts(), path);
  });
  return removed;
}

tags::RemovalParts TagRestorer::removalParts() const {
  return {parts_.files, parts_.desktop, parts_.player, parts_.busyFile};
}

UndoOutcome TagRestorer::writeTags(const Text& path, core::Track& track) {
  const auto write = [&](auto& tag) {
    UpdateResult result = UpdateResult::Done;
    parts_.errors.attempt(path, [&] {
      tag.setMP3File(path);
      const bool differs = fill(tag, track);
      if (!genreIsBack(tag, track)) track.procitan = false;
      if (!differs) return;
      result = makeWritable(path) ? tag.Update({parts_.failures, parts_.table}) : UpdateResult::Ignore;
    });
    if (result == UpdateResult::Ignore) track.procitan = false;
    return result == UpdateResult::Abort ? UndoOutcome::Abort : UndoOutcome::Done;
  };
  if (track.imaid3v1.isTrue()) {
    tags::cMP3ID3v1 tag(parts_.files);
    if (write(tag) == UndoOutcome::Abort) return UndoOutcome::Abort;
  }
  if (track.imaid3v2.isTrue()) {
    tags::cMP3ID3v2 tag(parts_.files);
    if (write(tag) == UndoOutcome::Abort) return UndoOutcome::Abort;
  }
  return UndoOutcome::Done;
}

bool TagRestorer::makeWritable(const Text& path) {
  try {
    parts_.files.clearAttributes(path);
  } catch (const FileError& error) {
    platform::caughtSilently(error);
    // What keeps the file from being written shows in the dialog of the write.
  }
  return parts_.busyFile.waitUntilFree(path);
}

}  // namespace velmora::undo
