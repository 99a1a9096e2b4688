#pragma once

#include <cstdint>
#include <string_view>

#include "journal/undo_journal.h"

namespace velmora::journal {

/// A record that stands in the journal before the change that it takes back. It stays when the change was
/// done; else it is cut off again, so that no undo acts on what never happened.
class PendingRecord {
 public:
  /// Writes the record. Throws FileError when it could not be written: the change must not be made then.
  PendingRecord(UndoJournal& journal, std::string_view kind, TextView first, TextView rest);
  PendingRecord(const PendingRecord&) = delete;
  PendingRecord& operator=(const PendingRecord&) = delete;
  /// Cuts the record off unless it was kept; what other records stand behind it goes with it. A record that
  /// cannot be cut off stays: undo passes over a change that is not there.
  ~PendingRecord();

  /// The change has begun to reach the disk.
  void keep() { kept_ = true; }

 private:
  UndoJournal& journal_;
  std::uint64_t offset_;  // where the record begins, in bytes
  bool kept_ = false;
};

}  // namespace velmora::journal
