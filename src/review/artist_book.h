#pragma once

#include <functional>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "ui/form1.h"

namespace velmora::review {

/// Keeps `autori`, and the Artist List view while it is open, in step with the rows. Every command that
/// changes which artist a row has calls both operations.
class ArtistBook {
 public:
  ArtistBook(core::TrackTable& table, core::DataFolder& data, ui::Form1& form1);

  /// Raised while another window than the Processing Window is in front, for the artist list of the New Music
  /// Window.
  std::function<void(const Text& artist)> onAdded;
  std::function<void(const Text& artist)> onRemoved;

  /// A row gained this artist: adds or reclassifies it. `artist` is compared exactly, trailing blank
  /// included.
  void DodajAutora(const Text& artist);
  /// A row lost this artist: removes or reclassifies it.
  void IzbaciAutora(const Text& artist);
  /// Name of the artist folder that a Music Base row lies in; a single blank where its path has none.
  Text FolderAutor(int row) const;
  /// `autori` from `pevac` of the working list: distinct, first seen first. Returns when `eachRow` answers
  /// false.
  void collect(const std::function<bool(int row)>& eachRow);

 private:
  core::TrackTable& table_;
  core::DataFolder& data_;
  ui::Form1& form1_;
};

}  // namespace velmora::review
