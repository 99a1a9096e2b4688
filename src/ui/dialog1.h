#pragma once

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// The one progress window.
struct Dialog1 : Window {
  Dialog1() : Window(u"Please Wait ...") {}

  Label text;
  ProgressBar bar;
  Button minimize, stop;
};

}  // namespace velmora::ui
