#pragma once

#include <functional>
#include <vector>

#include "base/folders.h"
#include "core/track_table.h"
#include "newmusic/new_music_rows.h"
#include "ui/form2.h"

namespace velmora::newmusic {

/// Files on their way into one folder of the base.
struct PlannedMoves {
  Text folder;            ///< with a separator at its end
  std::vector<int> rows;  ///< of the files while nothing has been moved yet
};

/// The first half of a MOVE: goes through what is selected in the New Music Window, makes the folders of the
/// base, and writes down which file goes where. What a row stands for is what a click on it would list; the
/// lists themselves are left alone. Nothing in the table may change while it works.
class MoveCollect {
 public:
  MoveCollect(const core::TrackTable& table, const ui::Form2& form2, base::Folders& folders)
      : table_(table), form2_(form2), folders_(folders), rows_(table) {}

  /// The selected titles go to `album`, a full path with a separator at its end as all below.
  void titles(const Text& album);
  /// The selected albums of the selected artists become folders under `artist`.
  void albums(const std::vector<GenreRow>& genres, const Text& artist);
  /// The selected artists become folders under `genre`, with their albums below.
  void artists(const std::vector<GenreRow>& genres, const Text& genre);
  /// The chosen genres become folders under `root`, with all that is in them.
  void genres(const std::vector<GenreRow>& genres, const Text& root);
  /// The artists that the opened folder lists become folders under `genre`.
  void folderOfMusic(const Text& genre);

  /// In the order in which they are to be moved.
  std::vector<PlannedMoves> take() { return std::move(moves_); }

 private:
  struct Group {
    Text text;
    std::vector<int> rows;
  };
  std::vector<Group> byAlbum(const std::vector<int>& rows) const;
  bool byFolder() const { return form2_.albumByFolder.chosen(); }
  void oneArtist(const std::vector<GenreRow>& genres, const Text& artist, const Text& genre);
  void makeFolder(const Text& folder);
  void add(const std::vector<int>& rows, const Text& folder);

  const core::TrackTable& table_;
  const ui::Form2& form2_;
  base::Folders& folders_;
  NewMusicRows rows_;
  std::vector<PlannedMoves> moves_;
  std::vector<bool> planned_;  // by row
  std::vector<Text> missing_;  // folders that could not be made
};

}  // namespace velmora::newmusic
