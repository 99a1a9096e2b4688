#pragma once

#include <functional>
#include <vector>

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "platform/trash.h"
#include "ui/closing_step.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::list {

/// Form8: the listed files that are not music, with Delete and Move To. Neither is journalled: the trash and
/// the chosen folder hold what went.
class OtherFiles {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    platform::Files& files;
    platform::Trash& trash;
    platform::Dialogs& dialogs;
    platform::FileHolder& player;
    ui::Windows& windows;
    ui::Progress& progress;
    ui::ClosingStep& closing;
  };
  explicit OtherFiles(const Parts& parts) : parts_(parts) {}

  /// Fills the list and shows the window.
  void open();
  /// Sends the selected files to the trash. A failure is told and ends the walk; the rows of files that are
  /// still there stay.
  void deleteSelected();
  /// Moves the selected files into a folder that the user picks. The rows of files that were not moved stay.
  void moveSelected();

 private:
  /// What came of one file: whether its row goes, and whether the walk goes on.
  struct Outcome {
    bool gone;
    bool goOn;
  };

  bool busy() const { return !parts_.windows.form8.enabled(); }
  void walkSelected(const Text& caption, const std::function<Outcome(const Text& path)>& treat);
  void keepRows(std::vector<Text> left);
  Outcome sendToTrash(const Text& path);

  Parts parts_;
};

}  // namespace velmora::list
