#pragma once

#include <functional>

#include "base/base_lists.h"
#include "base/folders.h"
#include "platform/dialogs.h"

namespace velmora::base {

/// "New" under the three columns of folders. In the Music Base Window it asks for the name; while the New
/// Music Window is at work (`aktivniprozor` 2) the name box tells it.
class NewFolders {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Dialogs& dialogs;
    ui::Form3& form3;
    BaseLists& lists;
    Folders& folders;
  };
  explicit NewFolders(const Parts& parts) : parts_(parts) {}

  /// "Select main folder for Your Music Base", for a base that has no root yet.
  std::function<void()> onSelectRoot;

  void newGenre();
  void newArtist();
  void newAlbum();
  /// Whether the base has a root, after asking for it where it had none.
  bool haveRoot();

 private:
  Parts parts_;
};

}  // namespace velmora::base
