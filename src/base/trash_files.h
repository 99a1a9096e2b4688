#pragma once

#include <functional>
#include <vector>

#include "core/track_table.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "platform/trash.h"
#include "ui/progress.h"

namespace velmora::base {

/// Sends files of the base to the desktop's trash.
class TrashFiles {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Trash& trash;
    platform::FileHolder& player;
    ui::Progress& progress;
  };
  explicit TrashFiles(const Parts& parts) : parts_(parts) {}

  /// Raised before a file goes, for the external player that may play it.
  std::function<void(const Text& path)> onDeleting;

  /// Paths of all files in and below a folder: each folder's own before those of its subfolders. A link
  /// counts as a file, wherever it leads. Throws FileError.
  std::vector<Text> CollectDelete(const Text& folder);
  /// Sends the files in this order, and moves the bar. A file that cannot go stays, without a word. Ends
  /// early on Stop.
  void Delete(const std::vector<Text>& paths);

 private:
  Parts parts_;
};

}  // namespace velmora::base
