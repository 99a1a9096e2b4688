#pragma once

#include <functional>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "rows/artist_book.h"
#include "rows/plain_rename.h"
#include "tags/each_tag_writer.h"
#include "ui/form1.h"

namespace velmora::batch {

/// The one way in which the file of a row gets a new name.
class Renamer {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    platform::Desktop& desktop;
    platform::FileHolder& player;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    tags::FilePanel& panel;
    tags::EachTagWriter& tagWriter;
    ui::Form1& form1;
  };
  explicit Renamer(const Parts& parts) : parts_(parts) {}

  /// Raised in the duplicates view when a row has a new name: its comparison keys are to be made anew.
  std::function<void(int row)> onDuplicateRenamed;

  /// Gives the file of `row` the name in the name box, cleaned and, where another file has it, with blanks
  /// behind it; the box shows the name that was taken. With `withUndo` the rename is journalled, and tags
  /// that equal the old name follow the new one. A name that is the old one, or empty, changes nothing.
  /// Failures are shown; throws journal::NotRecorded, and nothing is changed then.
  rows::RenameResult PromeniIme(int row, bool withUndo);

 private:
  struct OldName {
    Text path, artist, title;
  };
  void rename(int row, bool withUndo);
  void cleanBox();
  Text pathFromBox(const Text& oldPath) const;
  /// Moves the file under the first free name and returns that path; the old one when it stays where it is.
  Text moveToFreeName(int row, bool withUndo);
  void showNewPath(int row, const OldName& old, const Text& newPath);
  void findDash(int row, const OldName& old);
  void followWithTags(int row, const OldName& old);

  Parts parts_;
};

/// Whether two names differ in capitals alone.
bool sameButForCapitals(TextView left, TextView right);

}  // namespace velmora::batch
