#pragma once

namespace velmora::app {

struct House;

/// Ends the program as soon as nothing runs: a running command is stopped, a window that is waited for
/// closes.
void requestEnd(House& house);

/// The end itself: stores everything and closes every window, in the order in which closing the Music
/// Base Window does. Each step is guarded, so that none keeps the next from being stored.
void shutDown(House& house);

/// The end at once, with nothing stored: this instance gave way to another one.
void giveWay(House& house);

}  // namespace velmora::app
