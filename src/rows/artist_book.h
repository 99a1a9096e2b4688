#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include "core/data_folder.h"
#include "core/track_table.h"
#include "ui/form1.h"

namespace velmora::rows {

/// Keeps `autori`, and the Artist List view while it is open, in step with the rows. Every command that
/// changes which artist a row has calls both operations. Artists are compared exactly: capitals and the
/// trailing blank of `pevac` count.
class ArtistBook {
 public:
  ArtistBook(core::TrackTable& table, core::DataFolder& data, ui::Form1& form1);

  /// Raised while another window than the Processing Window is in front, for the artist list of the New Music
  /// Window.
  std::function<void(const Text& artist)> onAdded;
  std::function<void(const Text& artist)> onRemoved;

  /// A row gained this artist: adds or reclassifies it. autori.txt is saved when `autori` changed.
  void DodajAutora(const Text& artist);
  /// A row lost this artist: removes or reclassifies it. `autori` loses it only when the current row lies in
  /// the working list. autori.txt is saved when `autori` changed.
  void IzbaciAutora(const Text& artist);
  /// Name of the artist folder that a Music Base row lies in; a single blank where its path has none.
  Text FolderAutor(int row) const;
  /// Makes `autori` from `pevac` of the working list: distinct, first seen first. `eachRow` hears of each row
  /// from 2 on, before it is looked at; where it answers false, the rows from there on are left out.
  void collect(const std::function<bool(int row)>& eachRow);

  /// Open while a command changes many rows, so that each change costs the same however many artists there
  /// are. Artists that go stay in `autori` until the last scope closes, which then saves autori.txt once.
  /// Nothing else may change `autori` meanwhile.
  class Batch {
   public:
    explicit Batch(ArtistBook& book) : book_(book) { book_.openBatch(); }
    ~Batch() { book_.closeBatch(); }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    ArtistBook& book_;
  };

 private:
  struct Index {
    std::unordered_map<Text, std::size_t> places;  // where an artist stands in `autori`
    std::vector<std::size_t> gone;                 // places whose artist was removed
    bool changed = false;
    int scopes = 0;
  };

  bool viewOpen() const {
    return table_.vrsta == core::Review::ArtistList && table_.aktivniprozor == core::WindowAtWork::Processing;
  }
  bool add(const Text& artist);
  void remove(const Text& artist);
  void openBatch();
  void closeBatch();
  void save();

  core::TrackTable& table_;
  core::DataFolder& data_;
  ui::Form1& form1_;
  std::optional<Index> batch_;
};

}  // namespace velmora::rows
