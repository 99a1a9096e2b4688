#include "undo/name_restorer.h"

#include "names/grammar.h"
#include "rows/plain_rename.h"
#include "ui/view_choice.h"

namespace velmora::undo {

using rows::RenameResult;

namespace {}  // namespace

UndoOutcome NameRestorer::restore(const Text& newPath, const journal::RenamePayload& before) {
  const int row = rowOf(newPath, before);
  const Text path = fileToRename(row, newPath, before);
  if (!path.empty()) {
    const RenameResult result =
        rows::RenameNoList(parts_.files, parts_.failures, parts_.player, path, before.path);
    if (result == RenameResult::Abort) return UndoOutcome::Abort;
    if (result == RenameResult::Ignore) return UndoOutcome::Done;
  }
  if (row > 0) restoreRow(row, before);
  return UndoOutcome::Done;
}

/// The row of the record. After a crash the table may be older than the journal; the row that speaks of the
/// file counts then, and 0 when there is none.
int NameRestorer::rowOf(const Text& newPath, const journal::RenamePayload& before) const {
  const core::TrackTable& table = parts_.table;
  const auto speaksOfIt = [&](int row) {
    return table.path(row) == newPath || table.path(row) == before.path;
  };
  const int row = table.hasRow(before.row) ? before.row : 0;
  if (speaksOfIt(row) || !parts_.files.fileExists(newPath)) return row;
  for (int other = 1; other <= table.rows(); ++other)
    if (speaksOfIt(other)) return other;
  return 0;
}

/// Path that the file has now; empty when it has its old name already, as after an undo that was cut short.
Text NameRestorer::fileToRename(int row, const Text& newPath, const journal::RenamePayload& before) const {
  if (parts_.files.fileExists(newPath)) return newPath;
  const Text& path = parts_.table.path(row);
  if (path.empty() || path == before.path) return {};
  return path == newPath && parts_.files.fileExists(before.path) ? Text() : path;
}

void NameRestorer::restoreRow(int row, const journal::RenamePayload& before) {
  core::TrackTable& table = parts_.table;
  core::Track& track = table.track(row);
  const Text artist = track.pevac.text();
  const Text shown = track.nizdes.text();
  track.nizdes = before.path;
  track.crtapos = before.crtapos;
  names::PevacIPesma(table, row);
  parts_.artists.DodajAutora(track.pevac.text());
  table.currentRow = row;
  parts_.artists.IzbaciAutora(artist);
  showOldPath(row, shown, before.path);
}

void NameRestorer::showOldPath(int row, const Text& shown, const Text& oldPath) {
  const core::TrackTable& table = parts_.table;
  ui::Form1& form1 = parts_.form1;
  if (table.vrsta == core::Review::Duplicates) {
    if (onDuplicateRenamed) onDuplicateRenamed(row);
    for (int index = 0; index < form1.List6.ListCount(); ++index)
      if (form1.List6.List(index) == shown) form1.List6.setList(index, oldPath);
  }
  if (row <= table.brojfajlova() && ui::viewOf(form1) == ui::View::Music)
    form1.List4.setList(row - 1, oldPath);
}

}  // namespace velmora::undo
