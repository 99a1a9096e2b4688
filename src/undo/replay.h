#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/files.h"
#include "platform/trash.h"
#include "rows/artist_book.h"
#include "rows/file_mover.h"
#include "rows/row_keeper.h"
#include "ui/form1.h"
#include "ui/progress.h"
#include "undo/name_restorer.h"
#include "undo/tag_restorer.h"
#include "undo/undo_errors.h"
#include "undo/undo_outcome.h"

namespace velmora::undo {

/// Takes changes back: works the journal off from its newest record, applying the inverse of each.
class Replay {
 public:
  struct Parts {
    core::TrackTable& table;
    core::DataFolder& data;
    platform::Files& files;
    platform::Trash& trash;
    platform::Dialogs& dialogs;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    rows::RowKeeper& rows;
    rows::FileMover& mover;
    TagRestorer& tagRestorer;
    NameRestorer& nameRestorer;
    UndoErrors& errors;
    ui::Progress& progress;
    ui::Form1& form1;
  };
  explicit Replay(const Parts& parts) : parts_(parts) {}

  // Records of windows that stand above this one.
  /// Check+Fix had come to this row; Find Duplicates to this pair.
  std::function<void(int row)> onFix;
  std::function<void(int inner, int outer)> onDup;
  /// A folder tree was moved from `from` to `to`: moves it back, and answers whether the user aborted.
  std::function<bool(const Text& from, const Text& to)> onFolderMoved;
  /// Snapshot of the New Music Window and the Music Base Window.
  std::function<void(const Text& snapshot)> onWindowState;
  /// The file list is to show the files that are not music.
  std::function<void()> onShowOtherFiles;

  /// Takes back everything down to the newest record of `stopKind`, that one included, or to the journal's
  /// end, and saves the table. What was taken back leaves the journal, and so does what commands appended
  /// meanwhile. Stop ends it at the next record. An error that the user does not go on from leaves the
  /// journal as it was and the table unsaved.
  void replayUndo(std::string_view stopKind);

 private:
  using Data = journal::UndoRecord::Data;
  using Inverse = UndoOutcome (Replay::*)(const Data&);
  static Inverse inverseOf(const journal::UndoRecord& record);

  std::uint64_t takeBack(std::string_view stopKind);
  UndoOutcome undoRename(const Data& data);
  UndoOutcome undoTags(const Data& data);
  UndoOutcome undoDelete(const Data& data);
  UndoOutcome undoRemoval(const Data& data);
  UndoOutcome undoMove(const Data& data);
  UndoOutcome undoMadeFolder(const Data& data);
  UndoOutcome undoFolderMove(const Data& data);
  UndoOutcome undoOtherFile(const Data& data);
  UndoOutcome restoreSelection(const Data& data);
  UndoOutcome restoreWindows(const Data& data);
  UndoOutcome restoreFix(const Data& data);
  UndoOutcome restoreDup(const Data& data);
  void sayNotInTrash(const Text& path);

  /// Where the file of the last "del" or "mov" record came to lie: another name than its own when that was
  /// taken, nowhere when it was passed over.
  struct CameBack {
    Text wanted;
    Text got;
  };

  Parts parts_;
  bool undeleteFailed_ = false;
  Text lastDeleted_;
  CameBack cameBack_;
};

/// Deletes an empty folder; one that holds anything goes to the trash as it is. Throws FileError.
void discardFolder(platform::Files& files, platform::Trash& trash, const Text& folder);

}  // namespace velmora::undo
