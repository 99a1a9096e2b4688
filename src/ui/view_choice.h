#pragma once

#include "ui/form1.h"

namespace velmora::ui {

/// The two views of the file list.
enum class View { Music, Other };

inline View viewOf(const ui::Form1& form1) {
  return form1.ostali.chosen() ? View::Other : View::Music;
}

/// Chooses a view and gives the list its title. Its rows are the caller's.
inline void enterView(ui::Form1& form1, View view) {
  const bool music = view == View::Music;
  (music ? form1.muzickiFajlovi : form1.ostali).setChosen(true);
  form1.listTitle.setText(music ? u"M U S I C    F I L E S" : u"O T H E R    F I L E S");
}

}  // namespace velmora::ui
