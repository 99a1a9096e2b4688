#pragma once

#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/window.h"

namespace velmora::ui {

/// The Music Base Window: the base as a tree of folders, and the menus of the program.
struct Form3 : Window {
  Form3() : Window(u"Music Base") {}

  Label rootLabel;              ///< the Music Base folder, empty while none is chosen
  Button selectMainFolder;      ///< "Select main folder for Your Music Base"
  Button showProcessingWindow;  ///< "Show Processing Window"
  Button about;
  Button exit;
  CheckBox plneso;         ///< "Play Next Song"
  CheckBox showTips;       ///< "Show Tips At Startup"
  CheckBox autoListFocus;  ///< "Auto List Focus"
  ListBox List1, List2, List3, List8;
};

}  // namespace velmora::ui
