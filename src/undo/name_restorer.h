#pragma once

#include <functional>
#include <optional>

#include "core/track_table.h"
#include "journal/undo_record.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "rows/artist_book.h"
#include "ui/failures.h"
#include "ui/form1.h"
#include "undo/songs.h"
#include "undo/undo_outcome.h"

namespace velmora::undo {

/// Takes back a rename ("ren").
class NameRestorer {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    ui::Failures& failures;
    platform::FileHolder& player;
    rows::ArtistBook& artists;
    ui::Form1& form1;
    Songs& songs;
  };
  explicit NameRestorer(const Parts& parts) : parts_(parts) {}

  /// Raised in the duplicates view when a row has its old name: its comparison keys are to be made anew.
  std::function<void(int row)> onDuplicateRenamed;

  /// Gives the file its old name, and the row its old name, dash and artist. `newPath` is what the rename had
  /// made of it. A row whose file did not get its name back keeps the name that the file has; a file that no
  /// row speaks of is another one, and is left alone.
  UndoOutcome restore(const Text& newPath, const journal::RenamePayload& before);
  /// A row is to have the name that its file has already.
  void follow(int row, const Text& path);

 private:
  int rowOf(const Text& place, const journal::RenamePayload& before);
  bool isHome(const Text& place, const journal::RenamePayload& before) const;
  void rename(int row, const Text& path, std::optional<Text> crtapos);
  void showPath(int row, const Text& shown, const Text& path);

  Parts parts_;
};

}  // namespace velmora::undo
