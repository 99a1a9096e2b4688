#pragma once

#include <vector>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/files.h"
#include "rows/file_mover.h"
#include "rows/row_keeper.h"

namespace velmora::rows {

/// The move of a file that is on the list: its row goes, and the journal remembers both.
class RowMover {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    journal::UndoJournal& journal;
    RowKeeper& rows;
    FileMover& mover;
  };
  explicit RowMover(const Parts& parts) : parts_(parts) {}

  /// Moves a file to the full path `target`. Unless `puniliste` is 1 the move is journalled first ("izb",
  /// "mov"), and the row of the file leaves the table. `likelyRow` is where the row is looked for first.
  /// Throws journal::NotRecorded; file and row are then as they were.
  MoveResult moveFile(const Text& path, const Text& target, int likelyRow = 0);

 private:
  int findRow(const Text& path, int likelyRow) const;
  void moveRecorded(const Text& path, const Text& to, int row);

  Parts parts_;
};

/// Tells where rows stand once rows among them have been removed.
class RemovedRows {
 public:
  explicit RemovedRows(int rows) : removed_(static_cast<std::size_t>(rows) + 1) {}

  /// The row that bore this number before anything was removed is gone.
  void remove(int row);
  /// The number that such a row bears now.
  int now(int row) const;

 private:
  // A Fenwick tree of the removed rows: element i counts those among the rows i - lowbit(i) + 1 to i, so that
  // removing a row and counting the rows below one cost log N each.
  std::vector<int> removed_;
};

}  // namespace velmora::rows
