#pragma once

#include <functional>

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "list/closing_step.h"
#include "names/dash_finder.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "review/artist_book.h"
#include "review/undo_journal.h"
#include "tags/file_panel.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// Turns folders into the track table: New List, Add and Add Folder.
class ListMaker {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    platform::Files& files;
    platform::Dialogs& dialogs;
    platform::Desktop& desktop;
    ui::Windows& windows;
    ui::Progress& progress;
    ClosingStep& closing;
    review::UndoJournal& journal;
    review::ArtistBook& artists;
    names::DashFinder& dashes;
    tags::FilePanel& panel;
  };
  explicit ListMaker(const Parts& parts) : parts_(parts) {}

  /// Raised by New List for what lies above: the New Music Window closes, the player lets go of its file.
  std::function<void()> onCleared;
  /// Runs Artist List, when it is the review in progress.
  std::function<void()> onArtistList;

  /// Asks, then empties the list, its files and the journal. The Music Base list stays.
  void newList();
  /// Adds the folder that the folder tree shows.
  void add();
  /// Asks for a folder and adds it.
  void addFolder();

 private:
  Parts parts_;
};

}  // namespace velmora::list
