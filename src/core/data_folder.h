#pragma once

#include <optional>
#include <vector>

#include "core/change_mark.h"
#include "core/column_files.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/files.h"

namespace velmora::core {

/// The folder Data beside Settings.ini: one file per column. Names of files in it compare without regard to
/// case. No failure is reported: a save that does not fit on the disk leaves the last good files, and a file
/// that cannot be read or written is moved aside before another takes its place.
class DataFolder {
 public:
  /// `programFolder` holds the folder Data, which is made at the first write and no earlier.
  DataFolder(platform::Files& files, Settings& settings, Text programFolder);

  /// Full path of a file in the folder, in the spelling that it has on disk where it exists.
  Text path(TextView fileName) const { return columns_.path(fileName); }

  /// Writes elements 1 to the upper bound; a column with no rows removes its file.
  void writeColumn(TextView fileName, const TrackTable& table, Column column);
  void writeList(TextView fileName, const std::vector<Text>& list);
  /// All elements of a file; empty when it is missing or cannot be read.
  std::vector<Element> readColumn(TextView fileName);
  std::vector<Text> readList(TextView fileName);
  void remove(TextView fileName) { columns_.remove(fileName); }

  /// Stores `ghb`, nizdes, crtapos, niznomusic, bazepesama and autori: all of them or none. Rows that another
  /// instance of the program has saved meanwhile are kept, between the working list and the tail.
  void savenizove(const TrackTable& table);
  /// Writes the fifteen tag columns, all of them or none.
  void SaveID3nizove(const TrackTable& table);
  /// Called before songs or rows change. Makes the file velmora.changing in the program folder; it goes when
  /// both saves above have run. A start that finds it there takes every row for unread, so that the tags are
  /// read from the files again, and finds out by path which rows belong to the Music Base. Without it, a kill
  /// between the saves could leave tag columns that belong to other rows. Each save alone makes the file too.
  void beginChange();
  /// File that a column is kept in, such as "crtapos.txt"; empty for `pevac` and `pesma`.
  static TextView fileOf(Column column);

  /// The load at a start: readNames fills the name columns and the side lists, and takes all rows for the
  /// working list; then readTags fills the tag columns, and takes brojbaza from `bazepesama` and brojfajlova
  /// from `ghb`. Where a change was cut short, or columns of different lengths prove that a record was lost,
  /// all that the tag columns tell is left out, and the rows of the Music Base are looked for instead of
  /// believing `ghb`; this is done, too, where `ghb` is missing or more than the rows can bear.
  void readNames(TrackTable& table);
  void readTags(TrackTable& table);
  /// Whether the `crtapos` and `autori` that were loaded speak of the rows that were loaded; else the caller
  /// derives them anew.
  bool namesTrue() const { return namesTrue_; }

  /// How many files another instance had listed that the saves of this one have kept, once after each time
  /// that this was noticed; nothing otherwise.
  std::optional<std::size_t> takeNoticeOfOthers();

 private:
  /// What another instance has saved and this one does not know.
  struct Others {
    std::vector<Text> rows, otherFiles, folders;
    bool met = false;
    bool untold = false;  // the user has not heard of it yet
  };

  std::optional<std::vector<Element>> read(TextView fileName);
  void readLists(TrackTable& table);
  int workingRows(const TrackTable& table, bool agree) const;
  void mark();
  /// Takes the mark away, unless a save is still to come.
  void unmark();
  void meetOthers();
  void noticeOthers(const TrackTable& table);
  std::vector<Text> stillThere(const std::vector<Text>& paths) const;

  platform::Files& files_;
  Settings& settings_;
  ColumnFiles columns_;
  ChangeMark mark_;
  Others others_;
  int savedTail_ = 0;  // rows of the Music Base at the end of nizdes.txt
  bool namesTold_;     // whether the last change, or that of a killed run, was followed by savenizove
  bool tagsTold_;      // and by SaveID3nizove
  bool namesTrue_ = true;
};

}  // namespace velmora::core
