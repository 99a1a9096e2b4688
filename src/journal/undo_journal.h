#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "core/track_table.h"
#include "platform/files.h"

namespace velmora::journal {

/// UndoData.txt beside Settings.ini: a stack of quoted one-line records, the newest last. Each append opens
/// the file, writes one line and closes it, so a crash loses nothing written so far. This class knows the
/// file and its records alone; replay stands above it.
class UndoJournal {
 public:
  UndoJournal(platform::Files& files, const core::Settings& settings, Text path);

  /// Raised with the kind after each marker, so that the undo buttons of the window concerned can follow.
  std::function<void(std::string_view kind)> onMarker;

  /// kind + L(first) + " " + rest, where L is the length in three digits and the text. `kind` has three
  /// letters. Throws FileError when the record could not be written: what it would undo must not be done
  /// then.
  void appendUndoRecord(std::string_view kind, TextView first, TextView rest);
  /// A stretch of records starts here. Throws FileError like appendUndoRecord.
  void appendUndoMarker(std::string_view kind);
  /// Kind of the topmost of new, fix, dup, st1, st2, dst and fst; "" when there is none, or without
  /// Settings.ini. Reads the file from its end, so it costs the length of the top stretch alone. Throws
  /// FileError.
  std::string lastUndoMarker() const;

  bool exists() const;
  /// All records, the oldest first. Torn and damaged lines are left out. Throws FileError.
  std::vector<Text> readRecords() const;
  /// Goes through the records from the newest to the oldest, reading no more than it needs, until `visit`
  /// answers false. `offset` is where the record's line begins, in bytes. Nothing when there is no journal or
  /// no Settings.ini. Throws FileError.
  void visitFromNewest(const std::function<bool(const Text& record, std::uint64_t offset)>& visit) const;
  /// Takes away what begins at `offset` or behind it, in one step. Throws FileError, and the journal is then
  /// as it was.
  void cutAt(std::uint64_t offset);
  /// Length in bytes; 0 when there is no journal.
  std::uint64_t size() const;
  /// Deletes the file, which ends the history. No failure is reported.
  void remove();

 private:
  void append(TextView record);
  bool endsTorn() const;

  platform::Files& files_;
  const core::Settings& settings_;
  Text path_;
  bool whole_ = false;  // the file is known to end with a line end
};

/// A text with its length in front, as at least three digits. Readers take three, so a text of 1000
/// characters or more makes its record unreadable.
Text lengthPrefixed(TextView text);
/// Three flags and fifteen L(x) fields: the tag columns, path and dash position of a row, and the count of
/// rows of the working list.
Text rowSnapshot(const core::TrackTable& table, int row);

}  // namespace velmora::journal
