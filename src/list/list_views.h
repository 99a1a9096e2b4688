#pragma once

#include <functional>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "list/closing_step.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "tags/file_panel.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// What the lists of the Processing Window show, and what a click on them does.
class ListViews {
 public:
  struct Parts {
    core::TrackTable& table;
    core::DataFolder& data;
    platform::Files& files;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    ui::Progress& progress;
    ClosingStep& closing;
    tags::FilePanel& panel;
  };
  explicit ListViews(const Parts& parts) : parts_(parts) {}

  /// "Muzicki fajlovi": the file list shows the working list.
  void showMusicFiles();
  /// "Ostali": the file list shows the files that are not music.
  void showOtherFiles();
  /// Brings the first listed file of the clicked folder into sight.
  void folderTreeClick();
  /// A click on the file list: shows the selected row in the panel.
  void List4Click();
  /// A click on the artist list: songs of the selected artists in List2 and List8.
  void List1Click();

 private:
  Parts parts_;
};

}  // namespace velmora::list
