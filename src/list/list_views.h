#pragma once

#include "core/data_folder.h"
#include "core/track_table.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "tags/file_panel.h"
#include "ui/closing_step.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// What the lists of the Processing Window show, and what a click on them does. While a command runs, or code
/// refills the lists (`puniliste`), clicks do nothing.
class ListViews {
 public:
  struct Parts {
    core::TrackTable& table;
    core::DataFolder& data;
    platform::Files& files;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    ui::Progress& progress;
    ui::ClosingStep& closing;
    tags::FilePanel& panel;
  };
  explicit ListViews(const Parts& parts) : parts_(parts) {}

  /// "Muzicki fajlovi": the file list shows the working list.
  void showMusicFiles();
  /// "Ostali": the file list shows the files that are not music.
  void showOtherFiles();
  /// Brings the first listed file of the clicked folder into sight, when a folder that was added lies in it.
  void folderTreeClick();
  /// A click on the file list: shows the selected row in the panel, or in the name box alone while Check+Fix
  /// or Find Duplicates runs.
  void List4Click();
  /// A click on the artist list: the selected artists go to List5, their songs to List2 and List8.
  void List1Click();

 private:
  bool busy() const { return !parts_.windows.form1.enabled(); }
  bool quiet() const { return busy() || parts_.table.puniliste == 1; }
  void showSongs();

  Parts parts_;
};

}  // namespace velmora::list
