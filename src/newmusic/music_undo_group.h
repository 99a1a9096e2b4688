#pragma once

#include "journal/undo_journal.h"
#include "newmusic/window_snapshot.h"

namespace velmora::newmusic {

/// Value of `aktivniprozor` while the New Music Window is at work: the base then asks for no names, saves no
/// positions, and journals the folders that it makes.
inline constexpr int newMusicWindow = 2;

/// One undoable operation of the New Music Window starts here: the marker, and what both windows show now.
/// The group lasts as long as its changes. Throws NotRecorded; nothing must be changed then.
[[nodiscard]] inline journal::UndoJournal::Group openMusicUndoGroup(journal::UndoJournal& journal,
                                                                    WindowSnapshot& snapshot) {
  journal::UndoJournal::Group group(journal);
  journal.appendUndoMarker("st2");
  journal.appendUndoRecord("biv", snapshot.windowStateSnapshot(), {});
  return group;
}

}  // namespace velmora::newmusic
