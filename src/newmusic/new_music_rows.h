#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include "core/track_table.h"
#include "platform/text.h"

namespace velmora::newmusic {

// Rows of the New Music Window's lists that stand for no name of their own.
inline constexpr TextView everyAutor = u"-<< Every Autor >>-";        ///< List1, index 0
inline constexpr TextView withoutGenree = u"-<< Without Genree >>-";  ///< List1, index 1
inline constexpr TextView everySongs = u"-<< Every Songs >>-";        ///< List3 and List8, index 0
inline constexpr TextView withoutAlbumAndYear = u"-<< Without Album And Year >>-";  ///< List3, index 1
inline constexpr int firstGenre = 2;   ///< index of the first real genre in List1
inline constexpr int firstAlbum = 2;   ///< index of the first real album in List3
inline constexpr int firstFolder = 1;  ///< index of the first real folder in List8

/// A row of the genre column, by its place in List1.
struct GenreRow {
  int index = 0;
  Text text;
};

/// Genres of the working list, in the order of their first file. `eachRow` hears of each row.
std::vector<Text> genresOf(const core::TrackTable& table, const std::function<void(int row)>& eachRow = {});
/// Name of the folder that the file of a row lies in.
TextView lastFolder(const core::TrackTable& table, int row);
/// The row of List8 for a folder of this name, and back.
Text folderRow(TextView folder);
Text folderOfRow(TextView row);

/// The working list looked up by genre and by artist: what the columns of the New Music Window show for any
/// choice, in the order in which a walk over all rows would find it. Made by one pass; it is good until the
/// table changes.
class NewMusicRows {
 public:
  explicit NewMusicRows(const core::TrackTable& table);

  /// Artists of the chosen genres, distinct, for List2.
  std::vector<Text> artists(const std::vector<GenreRow>& genres) const;
  /// Artists of the files whose path holds `folder`, distinct, for List2.
  std::vector<Text> artistsInFolder(TextView folder) const;
  /// Album-years of the chosen artists within the chosen genres, distinct, for List3 behind its two rows that
  /// are no albums.
  std::vector<Text> albums(const std::vector<GenreRow>& genres, const std::vector<Text>& artists) const;
  /// All rows of the chosen artists within the chosen genres: genre by genre, artist by artist.
  std::vector<int> songs(const std::vector<GenreRow>& genres, const std::vector<Text>& artists) const;
  /// The distinct rows of List8 for these files, behind its first one.
  std::vector<Text> folders(const std::vector<int>& rows) const;

 private:
  using RowsByText = std::unordered_map<TextView, std::vector<int>>;
  static const std::vector<int>& find(const RowsByText& map, TextView key);
  /// Where the chosen genres stand among each other, so that a file is compared with none of them.
  struct GenrePlaces {
    explicit GenrePlaces(const std::vector<GenreRow>& genres);
    std::vector<std::size_t> every;                     // of the row that stands for all files
    std::unordered_map<TextView, std::size_t> byGenre;  // "" for the row of files without a genre
  };
  std::vector<int> songs(const GenrePlaces& places, std::span<const Text> artists) const;

  const core::TrackTable& table_;
  RowsByText byArtist_;
  RowsByText byGenre_;  // "" for files without a genre
};

}  // namespace velmora::newmusic
