#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "journal/undo_record.h"
#include "platform/files.h"
#include "rows/artist_book.h"
#include "ui/form1.h"
#include "ui/progress.h"
#include "undo/file_restorer.h"
#include "undo/name_restorer.h"
#include "undo/songs.h"
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
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    FileRestorer& fileRestorer;
    TagRestorer& tagRestorer;
    NameRestorer& nameRestorer;
    Songs& songs;
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
  /// meanwhile. Stop ends it behind the change at hand. An error that the user does not go on from leaves the
  /// journal as it was and the table unsaved.
  void replayUndo(std::string_view stopKind);

 private:
  using Data = journal::UndoRecord::Data;
  using Inverse = UndoOutcome (Replay::*)(const Data&);
  static Inverse inverseOf(const journal::UndoRecord& record);

  std::uint64_t takeBack(std::string_view stopKind);
  UndoOutcome takeBack(const journal::UndoRecord& record);
  void tellWhereSongsAre(std::uint64_t left);
  int rowOf(int number, const Text& path);
  void catchUp();
  UndoOutcome undoRename(const Data& data);
  UndoOutcome undoTags(const Data& data);
  UndoOutcome undoDelete(const Data& data);
  UndoOutcome undoRemoval(const Data& data);
  UndoOutcome undoMove(const Data& data);
  UndoOutcome undoMadeFolder(const Data& data);
  UndoOutcome undoFolderMove(const Data& data);
  UndoOutcome undoOtherFile(const Data& data);
  UndoOutcome learnPlace(const Data& data);
  UndoOutcome restoreSelection(const Data& data);
  UndoOutcome restoreWindows(const Data& data);
  UndoOutcome restoreFix(const Data& data);
  UndoOutcome restoreDup(const Data& data);

  Parts parts_;
  std::uint64_t at_ = 0;  // where the record at hand begins
  bool caughtUp_ = false;
};

}  // namespace velmora::undo
