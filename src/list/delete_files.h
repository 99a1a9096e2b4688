#pragma once

#include <functional>
#include <vector>

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "platform/trash.h"
#include "rows/row_keeper.h"
#include "tags/file_panel.h"
#include "ui/closing_step.h"
#include "ui/form1.h"
#include "ui/not_done.h"
#include "ui/progress.h"

namespace velmora::list {

/// Delete: files go to the desktop's trash, and the journal remembers where they lie there. What could not go
/// stays in its list, and is told at the end.
class DeleteFiles {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    platform::Files& files;
    platform::Trash& trash;
    platform::Dialogs& dialogs;
    platform::FileHolder& player;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    rows::RowKeeper& rows;
    tags::FilePanel& panel;
    ui::ClosingStep& closing;
    ui::Progress& progress;
    ui::Form1& form1;
  };
  explicit DeleteFiles(const Parts& parts) : parts_(parts) {}

  /// Raised before a file goes, for the external player that may play it.
  std::function<void(const Text& path)> onDeleting;
  /// The artist list is to show its songs anew.
  std::function<void()> onSongsChanged;

  /// The Delete key in the file list: asks first, unless Shift is held.
  void deleteFromList(bool withoutAsking);
  /// The button of the file list, which asks in words of its own for files that are not music.
  void deleteByButton();
  /// The Delete key in the list of an artist's songs: asks, and then selects the line that follows.
  void deleteFromSongs(bool withoutAsking);
  /// Delete of the selected lines of the file list, music or other files.
  void deleteSelected();
  /// "Delete File(s)": the selected songs of the Artist List view.
  void deleteSongs();

 private:
  bool confirmed(const Text& question) const;
  void deleteRows(std::vector<int> rows, bool withSelection);
  void deleteRow(int row);
  void deleteOthers();
  void letGo(const Text& path);
  void sayWhatStayed();
  std::vector<int> selectedRows() const;

  Parts parts_;
  ui::NotDone stayed_;
};

}  // namespace velmora::list
