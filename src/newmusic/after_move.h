#pragma once

#include <vector>

#include "base/base_lists.h"
#include "core/track_table.h"
#include "newmusic/new_music_lists.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// The column that a MOVE started on.
enum class MoveColumn { Genre, Artist, Album, Title };

/// Remembers what is selected in both windows when a MOVE begins, and selects again what is left of it when
/// the lists have been made anew.
class AfterMove {
 public:
  struct Parts {
    core::TrackTable& table;
    ui::Windows& windows;
    base::BaseLists& base;
    NewMusicLists& lists;
  };
  explicit AfterMove(const Parts& parts);

  /// Lists both windows anew. `target` is the folder's name that the base is to show in the column that the
  /// MOVE started on.
  void restore(MoveColumn column, TextView target);

 private:
  void restoreNewMusic();
  void restoreBase(MoveColumn column, TextView target);

  Parts parts_;
  // Of the base.
  std::vector<Text> genres_, artists_, albums_;
  // Of the New Music Window: rows that were clicked last, and the artists.
  int genre_, artist_, album_, folder_;
  std::vector<Text> newArtists_;
};

}  // namespace velmora::newmusic
