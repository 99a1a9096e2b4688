#pragma once

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "list/closing_step.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/trash.h"
#include "player/hand_over.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// Form8: the listed files that are not music, with Delete and Move To.
class OtherFiles {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    platform::Files& files;
    platform::Trash& trash;
    platform::Dialogs& dialogs;
    player::FileHolder& player;
    ui::Windows& windows;
    ui::Progress& progress;
    ClosingStep& closing;
  };
  explicit OtherFiles(const Parts& parts) : parts_(parts) {}

  void open();
  /// Sends the selected files to the trash.
  void deleteSelected();
  /// Moves the selected files into a folder that the user picks.
  void moveSelected();

 private:
  Parts parts_;
};

}  // namespace velmora::list
