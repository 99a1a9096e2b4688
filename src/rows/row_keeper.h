#pragma once

#include <functional>
#include <optional>
#include <unordered_set>

#include "core/track_table.h"
#include "journal/undo_record.h"
#include "platform/files.h"
#include "rows/artist_book.h"
#include "ui/form1.h"

namespace velmora::rows {

/// Takes single rows out of the table and puts them back, with the file list and the artists in step.
class RowKeeper {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    ArtistBook& artists;
    ui::Form1& form1;
  };
  explicit RowKeeper(const Parts& parts) : parts_(parts) {}

  /// Raised in the duplicates view after a row came back: the rows from there on are one further down.
  std::function<void(int row)> onDuplicateRestored;

  /// Takes a row out; its "izb" record stands in the journal by then.
  void removeRow(int row);
  /// Puts a row back where it was, with its file at `path` now. Does nothing when the file is not there, or
  /// when the table still has the row. Returns whether the table has it now.
  bool restoreRow(int row, const journal::RowSnapshot& snapshot, const Text& path);
  /// The same for a row of the working list of which nothing is known but its place: it is unread.
  bool addRow(int row, const Text& path);

  /// Open while a command removes or restores many rows, so that each costs the same however long the file
  /// list is: the list follows all at once when the last scope closes, and keeps its selection. Its lines
  /// are not those of the rows meanwhile. A row that the table has already, be it under another number, is
  /// not put back.
  class Batch {
   public:
    explicit Batch(RowKeeper& keeper) : keeper_(keeper) { ++keeper_.batches_; }
    ~Batch() {
      if (--keeper_.batches_ == 0) keeper_.closeBatch();
    }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    RowKeeper& keeper_;
  };

 private:
  void closeBatch();
  bool insertRow(int row, const Text& path, bool working, const std::function<void(core::Track&)>& fill);
  bool tableHas(int row, const Text& path);
  bool listFollows() const;
  void listRows();

  Parts parts_;
  int batches_ = 0;
  std::optional<std::unordered_set<Text>> paths_;  // of all rows, from the first restore in a batch on
};

/// Gives a row the flags and tag columns of a snapshot.
void fillTags(core::Track& track, const journal::RowSnapshot& snapshot);

}  // namespace velmora::rows
