#pragma once

#include "ui/controls.h"

namespace velmora::ui {

/// The commands on names and tags of many files, and the way back from each.
struct RepairTools {
  RepairTools() {
    renameFiles.setVisible(false);
    for (Button* button : {&undoLastOperation, &undo, &restoreAllChanges}) button->setEnabled(false);
  }

  Button fnToId3;             ///< "FN-->ID3"
  Button id3ToFn;             ///< "FN <-- ID3"
  Button fixSyntax;           ///< "Fix Syntax"
  Button removeString;        ///< "Remove String"
  Button removeTrackNumber;   ///< "Remove Track Number"
  Button removeYearNumber;    ///< "Remove Year Number"
  Button replaceArtistTitle;  ///< "Replace Artist Title"
  Button rename;              ///< "Rename"
  Button renameFiles;         ///< "Rename File(s)", in the Artist List view
  Button deleteFiles;         ///< "Delete"

  Button undoLastOperation;  ///< "Undo last operation"
  Button undo;               ///< "UNDO": the same command
  Button undoName;           ///< "Undo Name"
  Button restoreAllChanges;  ///< "Restore all changes after Check+Fix"
};

/// The check boxes beside the six tag boxes, for several selected files: a ticked box takes what is typed in
/// it to all of them, the others leave each file its own value.
struct FieldChecks {
  CheckBox title, artist, album, year, track, genre;
};

}  // namespace velmora::ui
