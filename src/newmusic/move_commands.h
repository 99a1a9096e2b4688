#pragma once

#include <functional>
#include <vector>

#include "base/new_folders.h"
#include "core/data_folder.h"
#include "journal/undo_journal.h"
#include "newmusic/after_move.h"
#include "newmusic/move_collect.h"
#include "newmusic/move_summary.h"
#include "newmusic/window_snapshot.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "rows/artist_book.h"
#include "rows/row_keeper.h"
#include "rows/row_mover.h"
#include "tags/file_panel.h"
#include "ui/progress.h"

namespace velmora::newmusic {

/// "MOVE" under the four columns of the New Music Window: files what is selected there under the row that is
/// selected in the base. First all moves are planned and the folders made, then the files go one by one.
class MoveCommands {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    platform::Files& files;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    ui::Progress& progress;
    tags::FilePanel& panel;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    rows::RowKeeper& rows;
    rows::RowMover& mover;
    base::BaseLists& base;
    base::Folders& folders;
    base::NewFolders& newFolders;
    NewMusicLists& lists;
    MoveSummary& summary;
    WindowSnapshot& snapshot;
  };
  explicit MoveCommands(const Parts& parts)
      : parts_(parts), form2_(parts.windows.form2), form3_(parts.windows.form3) {}

  void moveGenre();
  void moveArtist();
  void moveAlbum();
  void moveTitle();

 private:
  /// What is the same for all four: `plan` goes through the selection and returns the name that the base is
  /// to select afterwards.
  void run(MoveColumn column, const Text& caption, const std::function<Text(MoveCollect&)>& plan);
  bool tagsRead(MoveColumn column);
  void apply(const std::vector<PlannedMoves>& plan, journal::UndoJournal::Group& group);
  void moveAll(const std::vector<PlannedMoves>& plan, double& bytes);
  void refuse(const Text& text);
  Text planGenres(MoveCollect& collect) const;

  Parts parts_;
  ui::Form2& form2_;
  ui::Form3& form3_;
};

}  // namespace velmora::newmusic
