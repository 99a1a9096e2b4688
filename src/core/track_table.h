#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

#include "core/element.h"
#include "core/gap_vector.h"
#include "core/review.h"
#include "core/window_at_work.h"
#include "platform/text.h"

namespace velmora::core {

/// One row of the track table: what is known of one file. docs/glossary.md gives the fields in English.
struct Track {
  Element nizdes;  ///< full path
  Element
      crtapos;    ///< 1-based position of the dash in the bare name, as number text; 0 without an artist part
  Element pevac;  ///< artist part of the name; set through TrackTable::setParts alone
  Element pesma;  ///< title part of the name; set through TrackTable::setParts alone
  Element procitan;  ///< True once the tag columns hold what the file says
  Element imaid3v1;  ///< the file has an ID3v1 tag
  Element pevacID3v1, pesmaid3v1, albumid3v1, godinaid3v1, brojtrakeid3v1, vrstaid3v1;
  Element imaid3v2;  ///< the file has an ID3v2 tag
  Element pevacID3v2, pesmaid3v2, albumid3v2, godinaid3v2, brojtrakeid3v2, vrstaid3v2;
};

/// A column is named by its field in Track.
using Column = Element Track::*;

/// All nineteen columns, `nizdes` first.
std::span<const Column> allColumns();
/// The fifteen columns of both tags with `procitan`, in the order in which they are saved.
std::span<const Column> tagColumns();

/// The data model that all windows share: columns of equal meaning per row, the side lists and the scalars.
///
/// Rows count from 1. Rows 1 to brojfajlova() are the working list; the rows behind it are a copy of the
/// Music Base list, never shown and touched by no batch. Each column has an upper bound of its own, since a
/// column file may be missing or short: elements beyond it hold nothing.
class TrackTable {
 public:
  TrackTable();
  TrackTable(const TrackTable&) = delete;
  TrackTable& operator=(const TrackTable&) = delete;

  /// Upper bound of `nizdes`: working list and tail together; 0 when it has no rows.
  int rows() const { return rows_; }
  /// Upper bound of one column; -1 for a column with no storage.
  int upperBound(Column column) const;
  bool hasRow(int row) const { return row >= 1 && row <= rows_; }
  /// The row, 1 to rows(). Any other number gives a blank row that keeps nothing of what is put in it, so
  /// that a count saved without its rows does no harm.
  Track& track(int row);
  const Track& track(int row) const;
  const Text& path(int row) const { return track(row).nizdes.text(); }
  /// An element within the upper bound of its column, which may lie beyond rows(); nothing elsewhere.
  const Element& element(Column column, int row) const;

  /// Gives a row its name parts, and keeps the count of rows per artist right.
  void setParts(int row, Text pevac, Text pesma);
  /// Adds a row behind all others. The other columns keep whatever storage they have at that row.
  void appendPath(Text path);
  /// Cuts `nizdes` to `rows` rows; the other columns keep their upper bounds until resizeColumns.
  void truncate(int rows);
  /// Brings every column to the upper bound of `nizdes`, contents kept.
  void resizeColumns();
  /// Takes a column's storage away: upper bound -1. Erasing `nizdes` leaves no rows.
  void erase(Column column);
  /// Replaces a column; element i of `elements` goes to row i + 1. No elements gives the upper bound -1.
  void setColumn(Column column, std::vector<Element> elements);
  /// Takes a row out of all columns; lowers brojfajlova() when it lay within.
  void removeRow(int row);
  /// Makes room for a blank row at `row` in all columns, 1 to rows() + 1. brojfajlova() stays as it is.
  void insertRow(int row);

  /// Rows in the working list. Kept on its own, never derived from rows().
  int brojfajlova() const { return brojfajlova_; }
  void setBrojfajlova(int rows);
  /// brojfajlova(), or rows() where a damaged table has fewer: the rows that a loop may walk.
  int workingRows() const { return brojfajlova_ < rows_ ? brojfajlova_ : rows_; }

  /// Rows of the working list, and of the tail, whose `pevac` is exactly `artist`.
  struct ArtistRows {
    int working = 0;
    int tail = 0;
  };
  ArtistRows artistRows(const Text& artist) const;

  // Side lists. Element i stands for row i + 1.
  std::vector<Text> bazepesama;   ///< folders that were added to the list
  std::vector<Text> bazaniz;      ///< every file under the Music Base folder, as of the last refresh
  std::vector<Text> autori;       ///< distinct artists of the working list, first seen first
  std::vector<Text> stariautori;  ///< artists that the Music Base holds; its first row may be empty
  std::vector<Text> niznomusic;   ///< listed files that are not music

  // Scalars shared by more than one command.
  int brojbaza = 0;           ///< entries in bazepesama
  double velicinasfiles = 0;  ///< bytes of the files of the working list
  bool Stop = false;          ///< set by the Stop button; long loops end at the next file
  WindowAtWork aktivniprozor = WindowAtWork::NotYetKnown;  ///< window whose commands act
  int sourceprozor = 0;                                    ///< 1 while the New Music Window is open
  int puniliste = 0;            ///< 1 while code refills lists, which keeps click handlers quiet
  Review vrsta = Review::None;  ///< review in progress
  int ton = 0;                  ///< sound of the preview player, hundredths of a decibel
  int playonwinamp = 0;         ///< 1 when a double click plays in the external player
  Text winampfile;              ///< path of the external player
  Text dirzabazu;               ///< Music Base folder as the Processing Window last read it
  int currentRow = 0;           ///< row that the panel shows; 0 before the first

 private:
  void reserveRow(int row);
  void countArtists() const;
  void forgetCounts() { countsValid_ = false; }
  /// Adds `change` to the count of the artist that a row has, where counts are kept.
  void count(int row, int change);
  void countInto(int row, int change) const;

  GapVector<std::unique_ptr<Track>> tracks_;  // as long as the longest column
  std::array<int, 19> upperBounds_;
  int rows_ = 0;
  int brojfajlova_ = 0;
  Track blank_;
  // Rows per artist, made when first asked for and kept right while parts change.
  mutable std::unordered_map<Text, ArtistRows> artistRows_;
  mutable bool countsValid_ = false;
};

}  // namespace velmora::core
