#pragma once

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// "Tip of the Day", with the heading "Did you know...".
struct FrmTip : Window {
  FrmTip() : Window(u"Tip of the Day") { showAtStartup.setChecked(true); }

  Label tip;
  CheckBox showAtStartup;  ///< "&Show Tips at Startup"
  Button nextTip;          ///< "&Next Tip"
  Button ok;
};

/// The About window: name, version and where the program keeps its state.
struct FrmAbout : Window {
  FrmAbout() : Window(u"About Velmora") {}

  Label version;
  Label programFolder;
  Button ok;
};

}  // namespace velmora::ui
