#pragma once

namespace velmora::app {

struct House;

/// Lets those commands be used that have something to act on. Called after every command and every change of
/// the current row.
void enableCommands(House& house);
/// The part of it that concerns the Music Base Window and the New Music Window, for their list clicks.
void enableBaseCommands(House& house);
/// The undo buttons of all windows follow what stands on top of the journal. Called at the start and after
/// whatever takes records away; what adds them raises onMarker.
void showUndoState(House& house);

}  // namespace velmora::app
