#pragma once

#include <set>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/files.h"

namespace velmora::base {

/// Folders of the base that commands make and take away.
class Folders {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    journal::UndoJournal& journal;
  };
  explicit Folders(const Parts& parts) : parts_(parts) {}

  /// Whether the folder was there; makes it when not. While the New Music Window is at work (`aktivniprozor`
  /// 2) the journal is told first ("mkd"). The folder above must be there. Throws FileError.
  bool PostojiDir(TextView path);
  /// Makes the folder when it is missing; the journal is not told. Throws FileError.
  void EnsureFolder(TextView path);
  /// Removes a folder and its subfolders as far as they hold no files and no links; below a folder that holds
  /// one, nothing is changed. A missing folder is no failure. Throws FileError.
  void RemoveEmptyTree(TextView path);

 private:
  void removeEmpty(const Text& folder, std::set<platform::FolderId>& walked);

  Parts parts_;
};

}  // namespace velmora::base
