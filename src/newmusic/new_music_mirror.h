#pragma once

#include "core/track_table.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// What a click in the New Music Window shows in the two other windows.
class NewMusicMirror {
 public:
  NewMusicMirror(core::TrackTable& table, ui::Windows& windows) : table_(table), windows_(windows) {}

  /// The Music Base Window shows where this artist lives already, genre by genre and whatever the capitals;
  /// it stays as it was when no genre has the artist.
  void showArtist(const Text& artist);
  /// The song of a row is marked in the file list of the Processing Window, and in the titles of the Music
  /// Base Window when one of them reads the same.
  void showSong(int row);

 private:
  core::TrackTable& table_;
  ui::Windows& windows_;
};

}  // namespace velmora::newmusic
