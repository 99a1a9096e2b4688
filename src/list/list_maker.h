#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "list/dash_finder.h"
#include "list/folder_scan.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "rows/artist_book.h"
#include "tags/file_panel.h"
#include "ui/closing_step.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// Turns folders into the track table: New List, Add and Add Folder. None of them does anything while another
/// command runs, that is while the Processing Window is disabled.
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
    ui::ClosingStep& closing;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    DashFinder& dashes;
    tags::FilePanel& panel;
  };
  explicit ListMaker(const Parts& parts) : parts_(parts) {}

  /// Raised by New List for what lies above: the New Music Window closes, the player lets go of its file.
  std::function<void()> onCleared;
  /// Runs Artist List, when it is the review in progress.
  std::function<void()> onArtistList;

  /// Asks, then empties the list, its files and the journal. The Music Base list stays.
  void newList();
  /// Adds the folder that the folder tree shows: the files in it that are not listed yet. So a second Add
  /// lists what the first has missed, because it was stopped or a folder could not be read.
  void add();
  /// Asks for a folder and adds it.
  void addFolder();

 private:
  /// What an Add has found, and what the user is to be told of it at the end.
  struct Found {
    bool again = false;  // the folder lies in one that was added before
    bool readable = true;
    int leftOut = 0;
    ui::NotDone unreadable;
    std::vector<FoundFile> music, other;  // until they are rows
    bool nothingNew = false;
    bool allListed = false;  // that is so because nothing was missed
  };

  bool busy() const { return !parts_.windows.form1.enabled(); }
  FolderScan::Parts scanParts() const;

  void eraseTable();
  void removeFiles();

  void enterFolder(const Text& folder);
  void leaveFolder();
  void makeList(const Text& folder, Found& found);
  void beginList();
  void findOldArtists();
  bool findFiles(const Text& folder, Found& found);
  void leaveOutListed(Found& found);
  void takeFound(Found& found);
  void storeHighest();
  void cutTail();
  void appendTail();
  void showRows();
  void listRows();
  std::vector<std::optional<std::uint64_t>> readTags(int rows);
  void findDashes();
  void collectArtists();
  void sumSizes(const std::vector<std::optional<std::uint64_t>>& known);
  void tellLeftOut(int count);
  void tell(const Text& text);

  Parts parts_;
};

}  // namespace velmora::list
