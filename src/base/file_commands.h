#pragma once

#include <functional>
#include <vector>

#include "base/base_lists.h"
#include "base/trash_files.h"
#include "platform/dialogs.h"
#include "platform/hand_over.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::base {

/// "Ren" and "Del" under the column of titles.
class FileCommands {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    platform::FileHolder& player;
    ui::Windows& windows;
    ui::Progress& progress;
    BaseLists& lists;
    TrashFiles& trash;
  };
  explicit FileCommands(const Parts& parts) : parts_(parts) {}

  /// Raised before a file gets another name, for the external player that may play it.
  std::function<void(const Text& path)> onMoving;

  /// Gives the file of the title clicked last the name in the box; its extension stays.
  void ren();
  /// Sends the files of the selected titles to the trash.
  void del();
  /// The same for all listed files that lie outside of an album folder.
  void delWithoutFolder();

 private:
  Text nameFor(int file, const Text& typed) const;
  bool rename(const Text& path, const Text& newPath);
  bool confirmed(const Text& question, const Text& title) const;
  void deleteFiles(const std::vector<int>& files);

  Parts parts_;
};

}  // namespace velmora::base
