#include "batch/renamer.h"

#include <optional>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/pending_record.h"
#include "journal/undo_record.h"
#include "names/grammar.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::batch {

using platform::FileError;

namespace {

constexpr int pauseBelowVersion = 260;  // older systems need a moment after a file was let go
constexpr int pauseMilliseconds = 100;
constexpr int extensionLength = 4;  // dot included

/// What of a name can stand on the disk, and in the records of the journal.
Text cleanName(TextView typed) {
  Text name = names::OcistiIme(typed);
  // A tag may hold what no record of ours can carry.
  for (char16_t& character : name)
    if (character < u' ') character = u' ';
  return Text(core::trim(name));
}

/// The path with another bare name.
Text withName(const Text& path, const Text& name) {
  return core::canonical(Text(core::paths::folderPart(path)) + name +
                         Text(core::right(path, extensionLength)));
}

}  // namespace

bool sameButForCapitals(TextView left, TextView right) {
  return left != right && core::equalNoCase(left, right);
}

rows::RenameResult Renamer::PromeniIme(int row, bool withUndo) {
  if (!parts_.table.hasRow(row)) return rows::RenameResult::Done;
  ui::TextBox& box = parts_.form1.Text1;
  box.setText(cleanName(box.text()));
  const Text before = parts_.table.path(row);
  const rows::RenameResult result = rename(row, box.text(), withUndo);
  if (parts_.table.path(row) != before) box.setText(names::ImeFajla(parts_.table, row));
  return result;
}

rows::RenameResult Renamer::rename(int row, const Text& name, bool withUndo) {
  if (!parts_.table.hasRow(row)) return rows::RenameResult::Done;
  for (;;) {
    try {
      return renameOnce(row, cleanName(name), withUndo);
    } catch (const journal::NotRecorded&) {
      throw;
    } catch (const FileError& error) {
      const Text& path = parts_.table.path(row);
      const rows::RenameResult answer = rows::askAboutRename(
          parts_.failures,
          u"Error While Renaming File " + path + u" #" + core::number(std::int64_t{error.number}) +
              u" Occurred: " + error.description + u"\r\n      Wath To Do ?",
          path, error);
      if (answer != rows::RenameResult::Done) return answer;
    }
  }
}

rows::RenameResult Renamer::renameOnce(int row, const Text& name, bool withUndo) {
  core::TrackTable& table = parts_.table;
  table.currentRow = row;
  const OldName old{table.path(row), table.track(row).pevac.text(), table.track(row).pesma.text()};
  // With nothing left of its name, a file would be hidden from the user.
  if (name.empty() || withName(old.path, name) == old.path) return rows::RenameResult::Done;

  platform::FileHandOver handOver(parts_.player, old.path);
  if (handOver.held() && parts_.desktop.systemVersion() < pauseBelowVersion)
    parts_.desktop.sleep(pauseMilliseconds);
  const Text newPath = moveToFreeName(row, name, withUndo);
  if (newPath == old.path) return rows::RenameResult::Done;
  handOver.renamed(newPath);
  table.track(row).nizdes = newPath;
  showNewPath(row, old, newPath);
  parts_.desktop.pumpEvents();
  findDash(row, old);
  parts_.artists.IzbaciAutora(old.artist);
  const bool aborted = withUndo && followWithTags(row, old) == tags::UpdateResult::Abort;
  if (table.vrsta == core::Review::Duplicates && onDuplicateRenamed) onDuplicateRenamed(row);
  if (table.vrsta == core::Review::Duplicates || table.vrsta == core::Review::ArtistList)
    parts_.artists.DodajAutora(table.track(row).pevac.text());
  return aborted ? rows::RenameResult::Abort : rows::RenameResult::Done;
}

Text Renamer::moveToFreeName(int row, Text name, bool withUndo) {
  const Text oldPath = parts_.table.path(row);
  for (;; name += u' ') {
    Text newPath = withName(oldPath, name);
    if (newPath == oldPath) return newPath;
    // The file itself would be found under a name that differs in capitals alone; the move tells then.
    if (!sameButForCapitals(newPath, oldPath) && parts_.files.fileExists(newPath)) continue;
    try {
      std::optional<journal::PendingRecord> record;
      if (withUndo)
        record.emplace(parts_.journal, journal::kind::renamed, newPath,
                       journal::renamePayload(parts_.table, row, parts_.files.identity(oldPath)));
      parts_.files.move(oldPath, newPath);
      if (record) record->keep();
      return newPath;
    } catch (const FileError& error) {
      if (error.number != FileError::fileExists || !parts_.files.fileExists(oldPath)) throw;
    }
  }
}

void Renamer::showNewPath(int row, const OldName& old, const Text& newPath) {
  ui::Form1& form1 = parts_.form1;
  if (row <= parts_.table.brojfajlova() && !form1.ostali.chosen()) form1.List4.setList(row - 1, newPath);
  if (parts_.table.vrsta != core::Review::Duplicates) return;
  for (int index = 0; index < form1.List6.ListCount(); ++index)
    if (form1.List6.List(index) == old.path) return form1.List6.setList(index, newPath);
}

void Renamer::findDash(int row, const OldName& old) {
  const int dash = names::dashAfterRename(names::ImeFajla(parts_.table, row), old.artist);
  parts_.table.track(row).crtapos = core::number(std::int64_t{dash});
  names::PevacIPesma(parts_.table, row);
}

/// The tags that equal the old name.
tags::WhichTags Renamer::tagsOf(int row, const OldName& old) const {
  const core::Track& track = parts_.table.track(row);
  const TextView artist = core::trim(old.artist);
  const TextView title = core::trim(old.title);
  return {.id3v1 = track.imaid3v1.isTrue() && track.pevacID3v1.text() == artist &&
                   track.pesmaid3v1.text() == title,
          .id3v2 = track.imaid3v2.isTrue() && track.pevacID3v2.text() == artist &&
                   track.pesmaid3v2.text() == title};
}

tags::UpdateResult Renamer::followWithTags(int row, const OldName& old) {
  const core::Track& track = parts_.table.track(row);
  parts_.desktop.pumpEvents();
  parts_.tagCache.read(track.nizdes.text(), row);
  tags::WhichTags which = tagsOf(row, old);
  if (!which.id3v1 && !which.id3v2) return tags::UpdateResult::Done;
  tags::OpenSong song(parts_.files, track.nizdes.text());
  try {
    // What another program wrote since the row was read does not follow.
    parts_.tagCache.readAnew(song.bytesToRead(), row);
    which = tagsOf(row, old);
  } catch (const FileError& error) {
    platform::caughtSilently(error);
    // The write asks about it.
  }
  try {
    return parts_.tagWriter.write(
        song, row,
        {.title = Text(core::trim(track.pesma.text())), .artist = Text(core::trim(track.pevac.text()))},
        which);
  } catch (const journal::NotRecorded&) {
    return tags::UpdateResult::Abort;  // the rename itself is done
  }
}

}  // namespace velmora::batch
