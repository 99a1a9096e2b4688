#pragma once

#include <functional>

#include "ui/controls.h"

namespace velmora::ui {

/// The panel that takes a part of the file list's room while Check+Fix or Find Duplicates walks the list. Its
/// suggestions are List6 of the Processing Window.
struct ReviewPanel {
  ReviewPanel() {
    panel.setVisible(false);
    numberTools.setVisible(false);
  }

  Frame panel;        ///< all of it
  Label question;     ///< what is asked, or what the walk is doing: the status label of the review
  Label weight;       ///< whether the file needs an answer or may stay as it is
  Label name;         ///< bare name of the file under review
  Label folder;       ///< the folder that it lies in
  Label position;     ///< "312 of 4,180"
  Label repaired;     ///< "14 repaired"
  Frame numberTools;  ///< Remove Track Number and Remove Year Number, while a number is asked about

  Button next;      ///< "Next", tip "Search Next"
  Button previous;  ///< "Prev.", tip "Go to previous and back changes."
  Button exit;      ///< "Exit From Step 3"
  Button stop;      ///< halts the walk at the next file
  Button play;      ///< plays the file under review

  /// The bare name that the file would get from this line of List6, for the view to mark what would change;
  /// empty when the line stands for no name.
  std::function<Text(const Text& suggestion)> nameAfter;
};

}  // namespace velmora::ui
