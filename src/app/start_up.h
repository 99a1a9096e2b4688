#pragma once

namespace velmora::app {

struct House;

/// Loads the table, brings up the window that was in front, and resumes what was interrupted. Nothing on the
/// way stops the load. Returns with the program ended when another instance runs and the user gives way.
void startUp(House& house);

}  // namespace velmora::app
