#include "journal/pending_record.h"

#include "platform/file_error.h"

namespace velmora::journal {

PendingRecord::PendingRecord(UndoJournal& journal, std::string_view kind, TextView first, TextView rest)
    : journal_(journal), offset_(journal.size()) {
  journal_.appendUndoRecord(kind, first, rest);
}

PendingRecord::~PendingRecord() {
  if (kept_) return;
  try {
    journal_.cutAt(offset_);
  } catch (const platform::FileError&) {
    // The record stays, and the next undo finds nothing to take back.
  }
}

}  // namespace velmora::journal
