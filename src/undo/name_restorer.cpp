#include "undo/name_restorer.h"

#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "names/grammar.h"
#include "rows/plain_rename.h"
#include "ui/view_choice.h"

namespace velmora::undo {

using rows::RenameResult;

namespace {}  // namespace

UndoOutcome NameRestorer::restore(const Text& newPath, const journal::RenamePayload& before) {
  Songs& songs = parts_.songs;
  const Text place = songs.now(newPath);
  songs.forget(newPath);
  songs.isAt(before.path, place);
  const int row = rowOf(place, before);
  if (row == 0) return UndoOutcome::Done;
  if (!isHome(place, before)) {
    const RenameResult result =
        rows::RenameNoList(parts_.files, parts_.failures, parts_.player, place, before.path);
    if (result != RenameResult::Done) {
      if (parts_.table.path(row) != place && parts_.files.fileExists(place)) follow(row, place);
      return result == RenameResult::Abort ? UndoOutcome::Abort : UndoOutcome::Done;
    }
  }
  songs.isAt(before.path, before.path);
  rename(row, before.path, before.crtapos);
  return UndoOutcome::Done;
}

/// After a crash the table may be older than the journal: the row has the old name then, unless that is
/// another file's by now.
int NameRestorer::rowOf(const Text& place, const journal::RenamePayload& before) {
  if (place.empty()) return 0;
  if (const int row = parts_.songs.rowAt(before.row, place)) return row;
  platform::Files& files = parts_.files;
  const auto isSong = [&](const Text& path) { return files.identity(path) == before.identity; };
  const bool old =
      before.identity.empty() || !files.fileExists(before.path) || isSong(before.path) || isSong(place);
  return old ? parts_.songs.rowAt(before.row, before.path) : 0;
}

void NameRestorer::follow(int row, const Text& path) {
  rename(row, path, std::nullopt);
}

/// Whether the file has its old name already: the change was not made, or an undo that was cut short took it
/// back. Where another file has come to either name, the old identity tells.
bool NameRestorer::isHome(const Text& place, const journal::RenamePayload& before) const {
  platform::Files& files = parts_.files;
  if (!files.fileExists(before.path)) return false;
  if (!files.fileExists(place)) return true;
  return !before.identity.empty() && files.identity(before.path) == before.identity &&
         files.identity(place) != before.identity;
}

/// Without a dash position that is looked for in the new name.
void NameRestorer::rename(int row, const Text& path, std::optional<Text> crtapos) {
  core::TrackTable& table = parts_.table;
  core::Track& track = table.track(row);
  const Text artist = track.pevac.text();
  const Text shown = track.nizdes.text();
  parts_.songs.renamed(row, path);
  track.nizdes = path;
  if (!crtapos)
    crtapos = core::number(std::int64_t{names::dashAfterRename(names::ImeFajla(table, row), artist)});
  track.crtapos = *std::move(crtapos);
  names::PevacIPesma(table, row);
  parts_.artists.DodajAutora(track.pevac.text());
  table.currentRow = row;
  parts_.artists.IzbaciAutora(artist);
  showPath(row, shown, path);
}

void NameRestorer::showPath(int row, const Text& shown, const Text& path) {
  const core::TrackTable& table = parts_.table;
  ui::Form1& form1 = parts_.form1;
  if (table.vrsta == core::Review::Duplicates) {
    if (onDuplicateRenamed) onDuplicateRenamed(row);
    for (int index = 0; index < form1.List6.ListCount(); ++index)
      if (form1.List6.List(index) == shown) form1.List6.setList(index, path);
  }
  if (row <= table.brojfajlova() && ui::viewOf(form1) == ui::View::Music) form1.List4.setList(row - 1, path);
}

}  // namespace velmora::undo
