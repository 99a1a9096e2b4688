#pragma once

#include <functional>
#include <vector>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "rows/artist_book.h"
#include "tags/file_panel.h"
#include "ui/closing_step.h"
#include "ui/failures.h"
#include "ui/form1.h"
#include "ui/progress.h"

namespace velmora::batch {

/// What all commands on the selected files have in common: one undo group, the progress window with its Stop,
/// the walk, and the save at the end however it came.
class BatchFrame {
 public:
  struct Parts {
    core::TrackTable& table;
    core::DataFolder& data;
    platform::Files& files;
    ui::Form1& form1;
    ui::Progress& progress;
    ui::ClosingStep& closing;
    journal::UndoJournal& journal;
    ui::Failures& failures;
    rows::ArtistBook& artists;
    tags::FilePanel& panel;
  };
  explicit BatchFrame(const Parts& parts) : parts_(parts) {}

  /// Rows of the selected lines of the file list; none while it shows other files.
  std::vector<int> selectedRows() const;
  /// Rows of the selected lines of the songs in the Artist List view.
  std::vector<int> selectedSongs() const;

  /// Does nothing without rows. Calls `treat` for each row in order; one that answers false is the last. Ends
  /// with a message about the files that were left out unasked, under the caption without its dots.
  void run(const Text& caption, const std::vector<int>& rows, const std::function<bool(int row)>& treat);

 private:
  void runGroup(const Text& caption, const std::vector<int>& rows, const std::function<bool(int row)>& treat);
  void walk(const std::vector<int>& rows, const std::function<bool(int row)>& treat);

  Parts parts_;
};

}  // namespace velmora::batch
