#pragma once

#include <cstdint>
#include <optional>

#include "core/track_table.h"
#include "journal/undo_record.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/trash.h"
#include "rows/file_mover.h"
#include "rows/row_keeper.h"
#include "undo/songs.h"
#include "undo/undo_errors.h"
#include "undo/undo_outcome.h"

namespace velmora::undo {

/// Takes back that a file went from the list: to the trash ("del") or to another folder ("mov"), and its row
/// from the table ("izb"). The record of the row follows that of its file.
class FileRestorer {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Trash& trash;
    platform::Dialogs& dialogs;
    rows::RowKeeper& rows;
    rows::FileMover& mover;
    UndoErrors& errors;
    Songs& songs;
  };
  explicit FileRestorer(const Parts& parts) : parts_(parts) {}

  /// A replay begins.
  void begin();
  /// Brings a file back from the trash, under another name where its own is taken. One that is not there, or
  /// has another size, is told.
  UndoOutcome bringBack(const journal::DeletedFile& deleted, const Text& inTrash);
  /// Moves a file back. Another file that has taken its place is told, and is left alone.
  UndoOutcome moveBack(const Text& oldPath, const journal::MovedFile& moved);
  /// Puts the row back that the records number `number` (0 when that cannot be read), at the path that its
  /// file has now; it stays out where the file did not come back. Without a snapshot it is an unread row.
  void restoreRow(int number, const std::optional<journal::RowSnapshot>& snapshot);

  /// Whether the file of the last "del" record is back.
  bool deletedIsBack() const { return deletedIsBack_; }
  void sayNotInTrash();

 private:
  bool isSong(const Text& path, const Text& identity, std::optional<std::uint64_t> size);
  bool isHome(const Text& oldPath, const Text& place, const journal::MovedFile& moved);
  UndoOutcome ended(rows::MoveResult result, Text got);
  void isBackAt(Text place);

  /// The file of the last "del" or "mov" record, whose row is to come: where it was and where it is now,
  /// nowhere when it did not come back.
  struct Last {
    Text wanted;
    Text got;
  };

  Parts parts_;
  std::optional<Last> last_;
  Text lastDeleted_;
  bool deletedIsBack_ = true;
};

}  // namespace velmora::undo
