#pragma once

#include <functional>
#include <vector>

#include "base/base_lists.h"
#include "base/file_commands.h"
#include "base/folder_moves.h"
#include "base/folders.h"
#include "base/trash_files.h"
#include "platform/dialogs.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::base {

/// "Ren" and "Del" under the three columns of folders. Both change the disk first and list the columns anew
/// afterwards.
///
/// Ren moves every file, one by one, to the tree of the new name and takes the emptied old tree away, so
/// several folders become one, and one becomes part of another that has the name already. What the user lets
/// pass stays where it was. There is no undo.
class FolderCommands {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    platform::FileHolder& player;
    ui::Windows& windows;
    ui::Progress& progress;
    BaseLists& lists;
    Folders& folders;
    TrashFiles& trash;
    FileCommands& fileCommands;
  };
  explicit FolderCommands(const Parts& parts) : parts_(parts) {}

  /// Raised before a file or folder is moved, for the external player that may play it.
  std::function<void(const Text& path)> onMoving;

  void renGenre();
  void renArtist();
  /// An empty name moves the files up to the artist's own; "-<< Without Folder >>-" takes these to an album.
  void renAlbum();
  void delGenre();
  void delArtist();
  void delAlbum();

 private:
  struct Renaming {
    Text from;
    Text to;
    bool wholeTree = true;  ///< nothing of `from` is to stay
  };
  using Renamings = std::vector<Renaming>;
  using Rebuild = std::function<void()>;

  ui::Form3& form3() { return parts_.windows.form3; }
  bool confirmed(const Text& question, const Text& title) const;
  bool nameGiven(const Text& name) const;
  bool there(const Text& folder) const;
  std::vector<int> selectedArtists() const;
  std::vector<int> selectedAlbums();
  void ren(ui::ListBox& column, const Text& busyText, const Renamings& renamings, const Rebuild& rebuild);
  bool moveFiles(const Renamings& renamings);
  void del(ui::ListBox& column, const std::vector<Text>& folders, const Rebuild& rebuild);
  bool reported(const Text& title, const std::function<void()>& step) const;
  void listAnew(ui::ListBox& column, const Rebuild& rebuild, bool selectSome);

  Parts parts_;
};

}  // namespace velmora::base
