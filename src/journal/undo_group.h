#pragma once

#include "journal/selection_snapshot.h"
#include "journal/undo_journal.h"

namespace velmora::journal {

/// One undoable operation of the Processing Window starts here: the marker, and what is selected now. The
/// group lasts as long as its changes. Throws NotRecorded; nothing must be changed then.
[[nodiscard]] inline UndoJournal::Group openUndoGroup(UndoJournal& journal, const ui::Form1& form1) {
  UndoJournal::Group group(journal);
  journal.appendUndoMarker(kind::processing);
  journal.appendUndoRecord(kind::selection, selectionSnapshot(form1), {});
  return group;
}

}  // namespace velmora::journal
