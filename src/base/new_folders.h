#pragma once

#include <functional>

#include "base/base_lists.h"
#include "base/folders.h"
#include "platform/dialogs.h"

namespace velmora::base {

/// "New" under the three columns of folders. In the Music Base Window it asks for the name; while the New
/// Music Window is at work the name box tells it. The box holds the folder's name
/// afterwards. A folder that cannot be made ends the command without a word.
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
  /// In the genre clicked last.
  void newArtist();
  /// In the folder of the artist clicked last. No year is added to the name.
  void newAlbum();
  /// Whether the base has a root, after asking for it where it had none.
  bool haveRoot();

 private:
  bool mayMake();
  template <typename Box>
  Text nameFrom(Box& box);
  bool made(const Text& parent, const Text& name);

  Parts parts_;
};

}  // namespace velmora::base
