#pragma once

#include "names/batch_frame.h"
#include "names/renamer.h"
#include "review/artist_book.h"
#include "review/undo_journal.h"

namespace velmora::names {

/// "Undo Name": takes back the last edit in the name box; when there is none, gives the selected files the
/// names that they had before their last rename. It only reads the journal, and can itself be undone.
class UndoName {
 public:
  struct Parts {
    core::TrackTable& table;
    ui::Form1& form1;
    BatchFrame& frame;
    Renamer& renamer;
    review::ArtistBook& artists;
    const review::UndoJournal& journal;
  };
  explicit UndoName(const Parts& parts) : parts_(parts) {}

  /// The name box takes back its own last edit, as its undo key does; answers whether it had one.
  bool undoEdit();
  void undoName();

 private:
  Parts parts_;
};

}  // namespace velmora::names
