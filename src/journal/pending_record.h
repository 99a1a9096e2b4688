#pragma once

#include <initializer_list>
#include <string_view>

#include "journal/undo_journal.h"

namespace velmora::journal {

/// A record that stands in the journal before the change that it takes back. It stays when the change was
/// done; else it is cut off again, so that no undo acts on what never happened.
class PendingRecord {
 public:
  /// Writes the record. Throws NotRecorded: the change must not be made then.
  PendingRecord(UndoJournal& journal, std::string_view kind, TextView first, TextView rest)
      : PendingRecord(journal, {{kind, first, rest}}) {}
  /// The same for a change of several records, the first one undone last.
  PendingRecord(UndoJournal& journal, std::initializer_list<NewRecord> records)
      : journal_(journal), place_(journal.appendChange(records)) {}
  PendingRecord(const PendingRecord&) = delete;
  PendingRecord& operator=(const PendingRecord&) = delete;
  /// Cuts the records off unless they were kept, or others stand behind them: undo passes over a change that
  /// is not there.
  ~PendingRecord() {
    if (!kept_) journal_.withdraw(place_);
  }

  /// The change has begun to reach the disk.
  void keep() { kept_ = true; }

 private:
  UndoJournal& journal_;
  UndoJournal::Place place_;
  bool kept_ = false;
};

}  // namespace velmora::journal
