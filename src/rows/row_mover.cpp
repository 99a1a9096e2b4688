#include "rows/row_mover.h"

#include <optional>

#include "journal/undo_record.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::rows {

using platform::FileError;

MoveResult RowMover::moveFile(const Text& path, const Text& target, int likelyRow) {
  Text movedTo;
  const MoveResult result = parts_.mover.move(path, target, &movedTo);
  if (result != MoveResult::Moved || parts_.table.puniliste == 1) return result;
  record(path, movedTo, findRow(path, likelyRow));
  return result;
}

/// 0 when no row of the working list has the path.
int RowMover::findRow(const Text& path, int likelyRow) const {
  const core::TrackTable& table = parts_.table;
  if (likelyRow >= 1 && likelyRow <= table.workingRows() && table.path(likelyRow) == path) return likelyRow;
  for (int row = 1; row <= table.workingRows(); ++row)
    if (table.path(row) == path) return row;
  return 0;
}

/// Returns where the file lies now.
Text RowMover::moveBack(const Text& movedTo, const Text& path) {
  try {
    if (movedTo != path) parts_.files.move(movedTo, path);
    return path;
  } catch (const FileError& error) {
    platform::caughtSilently(error);
    return movedTo;
  }
}

void RowMover::record(const Text& path, const Text& movedTo, int row) {
  const double listedBytes = parts_.table.velicinasfiles;
  const Text snapshot = row > 0 ? journal::rowSnapshot(parts_.table, row) : Text();
  bool removed = false;
  try {
    if (row > 0) parts_.rows.removeRow(row);
    removed = row > 0;
    parts_.journal.appendUndoRecord(journal::kind::fileMoved, path, movedTo);
  } catch (const FileError&) {
    // What cannot be taken back must not stay. Where the file cannot go back either, its row follows it.
    const Text place = moveBack(movedTo, path);
    const auto before = journal::parseRowSnapshot(snapshot);
    if (removed && before)
      parts_.rows.restoreRow(row, *before, place);
    else if (row > 0)
      parts_.table.track(row).nizdes = place;
    parts_.table.velicinasfiles = listedBytes;
    throw;
  }
}

void RemovedRows::remove(int row) {
  for (auto place = static_cast<std::size_t>(row); place < removed_.size(); place += place & (~place + 1))
    ++removed_[place];
}

int RemovedRows::now(int row) const {
  int before = 0;
  for (auto place = static_cast<std::size_t>(row); place > 0; place &= place - 1) before += removed_[place];
  return row - before;
}

}  // namespace velmora::rows
