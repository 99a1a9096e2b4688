#pragma once

#include <optional>
#include <vector>

#include "core/settings.h"
#include "core/track_table.h"
#include "platform/files.h"

namespace velmora::core {

/// The folder Data beside Settings.ini: one file per column. Names of files in it compare without regard to
/// case. No failure is reported: a column that cannot be written loses its file, one that cannot be read ends
/// with what was read so far.
class DataFolder {
 public:
  /// `programFolder` holds the folder Data, which is made at the first write and no earlier.
  DataFolder(platform::Files& files, Settings& settings, Text programFolder);

  /// Full path of a file in the folder, in the spelling that it has on disk where it exists.
  Text path(TextView fileName) const;

  /// Writes elements 1 to the upper bound; a column with no rows removes its file.
  void writeColumn(TextView fileName, const TrackTable& table, Column column);
  void writeList(TextView fileName, const std::vector<Text>& list);
  /// All elements of a file; empty when it is missing.
  std::vector<Element> readColumn(TextView fileName) const;
  std::vector<Text> readList(TextView fileName) const;
  void remove(TextView fileName);

  /// Stores `ghb`, then nizdes, crtapos, niznomusic, bazepesama and autori.
  void savenizove(const TrackTable& table);
  /// Writes the fifteen tag columns.
  void SaveID3nizove(const TrackTable& table);
  /// Called before songs or rows change. Makes the file velmora.changing in the program folder; it goes when
  /// both saves above have run. A start that finds it there takes every row for unread, so that the tags are
  /// read from the files again, and finds out by path which rows belong to the Music Base. Without it, a kill
  /// between the saves could leave tag columns that belong to other rows. Each save alone makes the file too.
  void beginChange();
  /// File that a column is kept in, such as "crtapos.txt"; empty for `pevac` and `pesma`.
  static TextView fileOf(Column column);

  /// The load at a start: readNames fills the name columns and the side lists, and takes all rows for the
  /// working list; then the caller derives the name parts; then readTags fills the tag columns, and takes
  /// brojbaza from `bazepesama` and brojfajlova from `ghb`, which is held within the rows.
  void readNames(TrackTable& table) const;
  void readTags(TrackTable& table);

 private:
  /// Makes `content` the file's content, or removes the file when that is empty or cannot be written.
  void store(TextView fileName, BytesView content);
  void mark();
  void writeMark(int tail);
  /// Takes the mark away, unless a save is still to come.
  void unmark();
  /// Rows of the Music Base at the end of nizdes.txt as the mark tells them; nothing without a mark.
  std::optional<int> markedTail() const;

  platform::Files& files_;
  Settings& settings_;
  Text folder_;
  Text changing_;      // full path of the mark
  int savedTail_ = 0;  // rows of the Music Base at the end of nizdes.txt
  bool namesTold_;     // whether the last change, or that of a killed run, was followed by savenizove
  bool tagsTold_;      // and by SaveID3nizove
};

}  // namespace velmora::core
