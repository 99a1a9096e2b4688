#pragma once

#include "ui/controls.h"
#include "ui/window.h"

namespace velmora::ui {

/// "FIX OPTIONS": what the syntax fixer does. Members bear the keys that they are stored under.
struct Dialog2 : Window {
  Dialog2() : Window(u"FIX OPTIONS") {
    OptionButton::makeGroup({&fixo1, &fixo2, &fixo3});
    OptionButton::makeGroup({&fixo4, &fixo5, &fixo6});
  }

  CheckBox fix2;                     ///< "Artist"
  OptionButton fixo1, fixo2, fixo3;  ///< "EVERY UPPER", "First Upper Of Word", "Only first upper"
  CheckBox fix3;                     ///< "Title"
  OptionButton fixo4, fixo5, fixo6;  ///< the same three for the title
  CheckBox fix13;                    ///< "( word )", tip "Put space between parenthesis"
  CheckBox fix14;                    ///< "DJ", tip "Always DJ upper"
  CheckBox fix15;                    ///< "feat", tip "Always feat lower"
  CheckBox fix10;                    ///< "Insert Removed Numbers Into ID3"
  Button ok, cancel;
};

}  // namespace velmora::ui
