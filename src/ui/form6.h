#pragma once

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// Options of Check+Fix. Members bear the keys that they are stored under.
struct Form6 : Window {
  Form6() : Window(u"Check+Fix Options") { OptionButton::makeGroup({&fixo7, &fixo8}); }

  CheckBox fix1a;      ///< "Check filename syntax"
  CheckBox fixj2;      ///< "Artist    -", for the syntax
  CheckBox fixj3;      ///< "Title", for the syntax
  CheckBox fix7;       ///< "Automatic", tip "When found wrong syntax, ask me before change"
  CheckBox fix4;       ///< "Check numbers in filename"
  CheckBox fix11;      ///< "Artist    -", for the numbers
  CheckBox fix12;      ///< "Title", for the numbers
  CheckBox fix5;       ///< "Check does exist artist part in filename"
  CheckBox fix9;       ///< "Check artist ( when filename haves 2 or more dashes)"
  CheckBox fix6;       ///< "Check diffrence between filename And ID3"
  CheckBox fix8;       ///< "Automatic", tip "When found diffrence, ask me before change"
  OptionButton fixo7;  ///< "Dominant filename"
  OptionButton fixo8;  ///< "Dominant ID3"
  CheckBox fix16;      ///< "Auto play file"
  Button ok, cancel;
};

}  // namespace velmora::ui
