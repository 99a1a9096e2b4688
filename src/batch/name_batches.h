#pragma once

#include <initializer_list>
#include <optional>

#include "batch/batch_frame.h"
#include "batch/renamer.h"
#include "names/syntax_fixer.h"
#include "platform/dialogs.h"
#include "rows/artist_book.h"
#include "tags/field_values.h"
#include "tags/file_panel.h"
#include "tags/tag_cache.h"
#include "tags/update_tags.h"
#include "ui/dialog2.h"

namespace velmora::batch {

/// The commands that give new names to the selected files, each one step that can be undone.
class NameBatches {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    ui::Form1& form1;
    const ui::Dialog2& options;
    BatchFrame& frame;
    names::SyntaxFixer& fixer;
    Renamer& renamer;
    rows::ArtistBook& artists;
    tags::TagCache& tagCache;
    tags::FilePanel& panel;
    tags::TagWriter& tagWriter;
  };
  explicit NameBatches(const Parts& parts) : parts_(parts) {}

  /// "Fix Syntax".
  void fixSyntax();
  /// "Remove String": a text that is asked for goes out of the names, and what is left is fixed.
  void removeString();
  /// "Remove Track Number": a number of 3, else 2, else 1 digits goes, into the tags where that is chosen.
  void removeTrackNumber();
  /// "Remove Year Number": the same with 4 digits.
  void removeYearNumber();
  /// "Replace Artist Title": the two parts change places.
  void replaceArtistTitle();
  /// "FN <-- ID3": artist and title of the tag in view become the name.
  void fromTags();
  /// "Rename": the name box for one file; for several, a single blank on either side of their dashes.
  void rename();
  /// "Rename File(s)" of the Artist List view: the boxes of artist and title for the selected songs.
  void renameFiles();

 private:
  using TagField = std::optional<Text> tags::FieldValues::*;
  // All of these return false after Abort.
  /// Gives the row a name and counts its artist.
  bool renameRow(int row, const Text& name);
  bool removeNumber(int row, std::initializer_list<int> lengths, TagField into);
  bool insertNumber(int row, const Text& digits, TagField into);

  void findFirstDash(int row);
  /// " - " when the row has no tag, or a blank one.
  Text nameFromTag(int row, bool preferFirst);

  Parts parts_;
};

}  // namespace velmora::batch
