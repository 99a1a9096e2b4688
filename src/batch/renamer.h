#pragma once

#include <functional>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "rows/artist_book.h"
#include "rows/plain_rename.h"
#include "tags/tag_cache.h"
#include "tags/update_tags.h"
#include "ui/failures.h"
#include "ui/form1.h"

namespace velmora::batch {

/// The one way in which the file of a row gets a new name.
class Renamer {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Desktop& desktop;
    platform::FileHolder& player;
    journal::UndoJournal& journal;
    ui::Failures& failures;
    rows::ArtistBook& artists;
    tags::TagCache& tagCache;
    tags::TagWriter& tagWriter;
    ui::Form1& form1;
  };
  explicit Renamer(const Parts& parts) : parts_(parts) {}

  /// Raised in the duplicates view when a row has a new name: its comparison keys are to be made anew.
  std::function<void(int row)> onDuplicateRenamed;

  /// Gives the file of `row` the bare name `name`, cleaned and, where another file has it, with blanks behind
  /// it. With `withUndo` the rename is journalled, and tags that equal the old name follow the new one. A
  /// name that is the old one, or empty, changes nothing. Failures are asked about; Abort may also come from
  /// a tag that could not follow. Throws journal::NotRecorded, and nothing is changed then.
  rows::RenameResult rename(int row, const Text& name, bool withUndo);
  /// The same with the name in the name box, which then shows the name that was taken.
  rows::RenameResult PromeniIme(int row, bool withUndo);

 private:
  struct OldName {
    Text path, artist, title;
  };
  rows::RenameResult renameOnce(int row, const Text& name, bool withUndo);
  /// Moves the file under the first free name and returns that path; the old one when it stays where it is.
  Text moveToFreeName(int row, Text name, bool withUndo);
  void showNewPath(int row, const OldName& old, const Text& newPath);
  void findDash(int row, const OldName& old);
  tags::WhichTags tagsOf(int row, const OldName& old) const;
  tags::UpdateResult followWithTags(int row, const OldName& old);

  Parts parts_;
};

/// Whether two names differ in capitals alone.
bool sameButForCapitals(TextView left, TextView right);

}  // namespace velmora::batch
