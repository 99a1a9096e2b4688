#pragma once

#include "batch/batch_frame.h"
#include "batch/renamer.h"
#include "journal/undo_journal.h"
#include "rows/artist_book.h"

namespace velmora::batch {

/// "Undo Name": takes back the last edit in the name box; when there is none, gives the selected files the
/// names that they had before their last rename. It only reads the journal, and can itself be undone.
class UndoName {
 public:
  struct Parts {
    core::TrackTable& table;
    ui::Form1& form1;
    BatchFrame& frame;
    Renamer& renamer;
    rows::ArtistBook& artists;
    const journal::UndoJournal& journal;
  };
  explicit UndoName(const Parts& parts) : parts_(parts) {}

  /// The name box takes back its own last edit, as its undo key does; answers whether it had one.
  bool undoEdit();
  void undoName();

 private:
  Parts parts_;
};

}  // namespace velmora::batch
