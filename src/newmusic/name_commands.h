#pragma once

#include "base/base_lists.h"
#include "base/new_folders.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "newmusic/window_snapshot.h"
#include "platform/dialogs.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// "Name" under the three columns of folders of the New Music Window: makes a folder in the base that bears
/// the name in the column's box.
class NameCommands {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    journal::UndoJournal& journal;
    base::NewFolders& newFolders;
    WindowSnapshot& snapshot;
  };
  explicit NameCommands(const Parts& parts)
      : parts_(parts), form2_(parts.windows.form2), form3_(parts.windows.form3) {}

  void nameGenre();
  void nameArtist();
  void nameAlbum();

 private:
  void refuse(const Text& text);

  Parts parts_;
  ui::Form2& form2_;
  ui::Form3& form3_;
};

}  // namespace velmora::newmusic
