#pragma once

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// "Find Duplicates - Settings".
struct Form7 : Window {
  Form7() : Window(u"Find Duplicates - Settings") {
    OptionButton::makeGroup({&similarFilename, &completeTheSame, &differentFilename});
    similarFilename.setChosen(true);
  }

  OptionButton similarFilename;    ///< `dupli`
  OptionButton completeTheSame;    ///< `duplk`, "Complete the same   (Without numbers)"
  OptionButton differentFilename;  ///< "Different filename"
  CheckBox sameFilesize;           ///< `samefs`, "Same filesize"; ticked and disabled by "Different filename"
  Button ok, cancel;
};

}  // namespace velmora::ui
