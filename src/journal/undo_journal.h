#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/settings.h"
#include "core/track_table.h"
#include "journal/record_kind.h"
#include "platform/file_error.h"
#include "platform/files.h"

namespace velmora::journal {

/// What the journal throws when a record cannot be written, with the number and the text of the cause. The
/// user has been told: the change must not be made, and the command that asked for it ends.
struct NotRecorded : platform::FileError {
  explicit NotRecorded(const platform::FileError& cause) : FileError(cause) {}
};

/// A record that is to be written: `kind` has three letters.
struct NewRecord {
  std::string_view kind;
  TextView first;
  TextView rest;
};

/// UndoData.txt beside Settings.ini: a stack of quoted one-line records, the newest last. Each append reaches
/// the system before it returns, so a kill loses nothing written so far; what a power cut may cost is told at
/// Group. This class knows the file and its records alone; replay stands above it.
class UndoJournal {
 public:
  UndoJournal(platform::Files& files, const core::Settings& settings, Text path);

  /// Raised with the kind after each marker, so that the undo buttons of the window concerned can follow.
  std::function<void(std::string_view kind)> onMarker;
  /// Raised ahead of a NotRecorded, once in a group and for each change outside of one: the user is to be
  /// told.
  std::function<void(const platform::FileError& cause)> onNotRecorded;

  /// Open while one command makes its changes: the file is opened once, and brought to the disk ahead of the
  /// first change, with every 256th one, before a file that went to another volume is removed here, and in
  /// the end. A group within another one is part of it.
  class Group {
   public:
    explicit Group(UndoJournal& journal) : journal_(&journal) { journal.openGroup(); }
    Group(Group&& other) noexcept : journal_(std::exchange(other.journal_, nullptr)) {}
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;
    ~Group() { end(); }
    /// Ends the group ahead of its scope: before the table is saved, as a table must not be newer than the
    /// journal.
    void end() {
      if (journal_) std::exchange(journal_, nullptr)->closeGroup();
    }

   private:
    UndoJournal* journal_;
  };

  /// kind + L(first) + " " + rest, where L(x) is lengthPrefixed(x). For what changes nothing on the disk; a
  /// change takes a PendingRecord. Throws NotRecorded.
  void appendUndoRecord(std::string_view kind, TextView first, TextView rest);
  /// A stretch of records starts here. Throws NotRecorded.
  void appendUndoMarker(std::string_view kind);
  /// Where records of one change stand in the file, in bytes.
  struct Place {
    std::uint64_t begin;
    std::uint64_t end;
  };
  /// Writes the records of one change that is about to be made, all or none. Throws NotRecorded.
  Place appendChange(std::initializer_list<NewRecord> records);
  /// Takes such records away again, unless others stand behind them by now. No failure is reported: undo
  /// passes over a change that was not made.
  void withdraw(const Place& place);
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
  void openGroup();
  void closeGroup() noexcept;
  Place append(BytesView lines);
  std::uint64_t openEnd();
  void sync();
  [[noreturn]] void fail(const platform::FileError& cause);

  platform::Files& files_;
  const core::Settings& settings_;
  Text path_;
  int groups_ = 0;
  std::unique_ptr<platform::OpenFile> file_;  // open within a group from its first record on
  std::uint64_t end_ = 0;                     // of the file as the last append left it
  int unsynced_ = 0;                          // changes whose records are not known to be on the disk
  bool changing_ = false;                     // the group has had a change to record
  bool changed_ = false;                      // and its first record is on the disk
  bool dirty_ = false;                        // something was written since the last sync
  bool told_ = false;                         // the user knows that this group cannot be recorded
};

/// A text with its length in front: three digits, or, from 1000 characters on, "#", the digits and ":".
Text lengthPrefixed(TextView text);

}  // namespace velmora::journal
