#pragma once

namespace velmora::app {

struct House;

/// Says, once each time, that another instance of the program has saved its list meanwhile, and what became
/// of the files in it.
void tellOfOthers(House& house);

}  // namespace velmora::app
