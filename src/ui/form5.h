#pragma once

#include <array>

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// "Extensions of music files": the live store of the options of the list.
struct Form5 : Window {
  struct Extension {
    CheckBox check;
    TextBox text;
  };

  Form5() : Window(u"Extensions of music files") {}

  /// Rows 1 to 6 and 8 to 13; row 7 is the refresh option.
  std::array<Extension, 12> extensions;
  CheckBox refreshOldMusicList;  ///< "When loading refresh old music list"
  Button clearBaseList;          ///< "Clear M. Base List"
  Button ok, cancel;
};

}  // namespace velmora::ui
