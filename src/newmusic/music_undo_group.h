#pragma once

#include "journal/undo_journal.h"
#include "newmusic/window_snapshot.h"

namespace velmora::newmusic {

/// One undoable operation of the New Music Window starts here: the marker, and what both windows show now.
/// The group lasts as long as its changes. Throws NotRecorded; nothing must be changed then.
[[nodiscard]] inline journal::UndoJournal::Group openMusicUndoGroup(journal::UndoJournal& journal,
                                                                    WindowSnapshot& snapshot) {
  journal::UndoJournal::Group group(journal);
  journal.appendUndoMarker(journal::kind::newMusic);
  journal.appendUndoRecord(journal::kind::windows, snapshot.windowStateSnapshot(), {});
  return group;
}

}  // namespace velmora::newmusic
