#include "batch/renamer.h"

#include <optional>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/pending_record.h"
#include "journal/undo_record.h"
#include "names/grammar.h"
#include "tags/field_boxes.h"

namespace velmora::batch {

using platform::FileError;

namespace {

constexpr int pauseBelowVersion = 260;  // older systems need a moment after a file was let go
constexpr int pauseMilliseconds = 100;
constexpr int extensionLength = 4;  // dot included
constexpr int duplicatesView = 2;
constexpr int artistListView = 3;

}  // namespace

bool sameButForCapitals(TextView left, TextView right) {
  return left != right && core::equalNoCase(left, right);
}

rows::RenameResult Renamer::PromeniIme(int row, bool withUndo) {
  if (!parts_.table.hasRow(row)) return rows::RenameResult::Done;
  for (;;) {
    try {
      rename(row, withUndo);
      return rows::RenameResult::Done;
    } catch (const journal::NotRecorded&) {
      throw;
    } catch (const FileError& error) {
      const rows::RenameResult answer = rows::askAboutRename(
          parts_.dialogs, u"Error While Renaming File " + parts_.table.path(row) + u" #" +
                              core::number(std::int64_t{error.number}) + u" Occurred: " + error.description +
                              u"\r\n      Wath To Do ?");
      if (answer != rows::RenameResult::Done) return answer;
    }
  }
}

void Renamer::rename(int row, bool withUndo) {
  core::TrackTable& table = parts_.table;
  table.currentRow = row;
  const OldName old{table.path(row), table.track(row).pevac.text(), table.track(row).pesma.text()};
  cleanBox();
  // With nothing left of its name, a file would be hidden from the user.
  if (parts_.form1.Text1.text().empty() || pathFromBox(old.path) == old.path) return;

  platform::FileHandOver handOver(parts_.player, old.path);
  if (handOver.held() && parts_.desktop.systemVersion() < pauseBelowVersion)
    parts_.desktop.sleep(pauseMilliseconds);
  const Text newPath = moveToFreeName(row, withUndo);
  if (newPath == old.path) return;
  handOver.renamed(newPath);
  table.track(row).nizdes = newPath;
  showNewPath(row, old, newPath);
  parts_.desktop.pumpEvents();
  findDash(row, old);
  parts_.artists.IzbaciAutora(old.artist);
  if (withUndo) followWithTags(row, old);
  if (table.vrsta == duplicatesView && onDuplicateRenamed) onDuplicateRenamed(row);
  if (table.vrsta == duplicatesView || table.vrsta == artistListView)
    parts_.artists.DodajAutora(table.track(row).pevac.text());
}

void Renamer::cleanBox() {
  Text name = names::OcistiIme(parts_.form1.Text1.text());
  // A tag may hold what no record of ours can carry.
  for (char16_t& character : name)
    if (character < u' ') character = u' ';
  parts_.form1.Text1.setText(core::trim(name));
}

Text Renamer::pathFromBox(const Text& oldPath) const {
  return core::canonical(Text(core::paths::folderPart(oldPath)) + parts_.form1.Text1.text() +
                         Text(core::right(oldPath, extensionLength)));
}

Text Renamer::moveToFreeName(int row, bool withUndo) {
  const Text oldPath = parts_.table.path(row);
  ui::TextBox& box = parts_.form1.Text1;
  const auto addBlank = [&box] { box.setText(box.text() + u' '); };
  for (;; addBlank()) {
    Text newPath = pathFromBox(oldPath);
    if (newPath == oldPath) return newPath;
    // The file itself would be found under a name that differs in capitals alone; the move tells then.
    if (!sameButForCapitals(newPath, oldPath) && parts_.files.fileExists(newPath)) continue;
    try {
      std::optional<journal::PendingRecord> record;
      if (withUndo)
        record.emplace(parts_.journal, "ren", newPath,
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
  if (parts_.table.vrsta != duplicatesView) return;
  for (int index = 0; index < form1.List6.ListCount(); ++index)
    if (form1.List6.List(index) == old.path) return form1.List6.setList(index, newPath);
}

void Renamer::findDash(int row, const OldName& old) {
  const int dash = names::dashAfterRename(names::ImeFajla(parts_.table, row), old.artist);
  parts_.table.track(row).crtapos = core::number(std::int64_t{dash});
  names::PevacIPesma(parts_.table, row);
}

void Renamer::followWithTags(int row, const OldName& old) {
  core::Track& track = parts_.table.track(row);
  const Text path = track.nizdes.text();
  parts_.desktop.pumpEvents();
  parts_.panel.info(path, row, tags::InfoMode::TagsOnly);
  const TextView artist = core::trim(old.artist);
  const TextView title = core::trim(old.title);
  const bool first =
      track.imaid3v1.isTrue() && track.pevacID3v1.text() == artist && track.pesmaid3v1.text() == title;
  const bool second =
      track.imaid3v2.isTrue() && track.pevacID3v2.text() == artist && track.pesmaid3v2.text() == title;
  if (!first && !second) return;

  const tags::OwnValues ownValues(parts_.form1);
  tags::OpenSong song(parts_.files, path);
  parts_.panel.info(song, row);
  parts_.tagWriter.write(song, first, second, [this, &track] {
    parts_.form1.tags.title.setText(core::trim(track.pesma.text()));
    parts_.form1.tags.artist.setText(core::trim(track.pevac.text()));
  });
}

}  // namespace velmora::batch
