#pragma once

namespace velmora::app {

struct House;

/// The end of the program: stores everything and closes every window, in the order in which closing the Music
/// Base Window does. Each step is guarded, so that none keeps the next from being stored.
void shutDown(House& house);

/// The end at once, with nothing stored: this instance gave way to another one.
void giveWay(House& house);

}  // namespace velmora::app
