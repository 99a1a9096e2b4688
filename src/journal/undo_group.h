#pragma once

#include "journal/selection_snapshot.h"
#include "journal/undo_journal.h"

namespace velmora::journal {

/// One undoable operation of the Processing Window starts here: the marker, and what is selected now. Throws
/// FileError; nothing must be changed then.
inline void openUndoGroup(UndoJournal& journal, const ui::Form1& form1) {
  journal.appendUndoMarker("st1");
  journal.appendUndoRecord("bi1", selectionSnapshot(form1), {});
}

}  // namespace velmora::journal
