#include "rows/row_mover.h"

#include <initializer_list>
#include <optional>

#include "core/number_text.h"
#include "journal/pending_record.h"
#include "journal/record_kind.h"
#include "journal/undo_record.h"

namespace velmora::rows {

MoveResult RowMover::moveFile(const Text& path, const Text& target, int likelyRow) {
  if (parts_.table.puniliste == 1) return parts_.mover.move(path, target);
  const int row = findRow(path, likelyRow);
  const auto move = [&](const Text& to) { moveRecorded(path, to, row); };
  const MoveResult result = parts_.mover.moveBy(move, path, target, nullptr);
  // What lies at its target already leaves the list too.
  if (result == MoveResult::Moved && path == target) move(target);
  if (result == MoveResult::Moved && row > 0) parts_.rows.removeRow(row);
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

void RowMover::moveRecorded(const Text& path, const Text& to, int row) {
  const Text moved = journal::movedFile(to, parts_.files.identity(path), parts_.files.size(path));
  std::optional<journal::PendingRecord> record;
  if (row > 0)
    record.emplace(parts_.journal, std::initializer_list<journal::NewRecord>{
                                       {journal::kind::rowRemoved, core::number(std::int64_t{row}),
                                        journal::rowSnapshot(parts_.table, row)},
                                       {journal::kind::fileMoved, path, moved}});
  else
    record.emplace(parts_.journal, journal::kind::fileMoved, path, moved);
  if (to != path) parts_.files.move(path, to);
  record->keep();
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
