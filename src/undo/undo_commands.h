#pragma once

#include <string_view>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/dialogs.h"
#include "tags/file_panel.h"
#include "ui/closing_step.h"
#include "ui/form1.h"
#include "ui/progress.h"
#include "undo/replay.h"

namespace velmora::undo {

/// The commands of the Processing Window that take changes back, and the buttons that tell whether there is
/// something to take back.
class UndoCommands {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Dialogs& dialogs;
    journal::UndoJournal& journal;
    Replay& replay;
    ui::ClosingStep& closing;
    tags::FilePanel& panel;
    ui::Progress& progress;
    ui::Form1& form1;
  };
  explicit UndoCommands(const Parts& parts) : parts_(parts) {}

  /// "Undo last operation", and "UNDO".
  void undoLastOperation();
  /// "Restore all changes after Check+Fix": asks first.
  void restoreAllChanges();
  /// Enables the buttons by what stands on top of the journal. One that cannot be read just now leaves them
  /// as they are.
  void showState();
  /// The same where the topmost marker is known.
  void showState(std::string_view top);

 private:
  void clearFileSelection();
  void showCurrentRow();

  Parts parts_;
};

}  // namespace velmora::undo
