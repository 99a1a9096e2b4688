#pragma once

namespace velmora::app {

struct House;

/// Lets those commands be used that have something to act on. Called after every command and every change of
/// the current row.
void enableCommands(House& house);

}  // namespace velmora::app
