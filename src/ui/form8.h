#pragma once

#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/window.h"

namespace velmora::ui {

/// The listed files that are not music.
struct Form8 : Window {
  Form8() : Window(u"Other Files") {}

  ListBox list;
  Button deleteFiles;  ///< "Delete"
  Button moveTo;       ///< "Move To"
  Button close;
};

}  // namespace velmora::ui
