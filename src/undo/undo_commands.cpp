#include "undo/undo_commands.h"

#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/quiet_lists.h"

namespace velmora::undo {

namespace {}  // namespace

void UndoCommands::undoLastOperation() {
  ui::Form1& form1 = parts_.form1;
  form1.statusLabel.setText(u" Undoing ... ");
  parts_.closing.run([this, &form1] {
    parts_.progress.show(u" Undoing ... ");
    {
      const ui::QuietLists quietly(parts_.table);
      clearFileSelection();
      if (parts_.table.vrsta == core::Review::ArtistList) form1.List2.Clear();
      parts_.replay.replayUndo(journal::kind::processing);
      if (parts_.table.vrsta == core::Review::ArtistList) clearFileSelection();
    }
    showCurrentRow();
  });
  form1.statusLabel.setText({});
  showState();
}

void UndoCommands::restoreAllChanges() {
  if (parts_.table.vrsta != core::Review::None) return;
  if (parts_.dialogs.message(u"Are you sure you want UNDO all fix from previous search?", u"Undo",
                             platform::Buttons::OkCancel, platform::Icon::Question) != platform::Answer::Ok)
    return;
  parts_.closing.run([this] {
    parts_.progress.show(u" Undoing ... ");
    parts_.replay.replayUndo(journal::kind::checkFix);
    showCurrentRow();
  });
  showState();
}

void UndoCommands::showState() {
  try {
    showState(parts_.journal.lastUndoMarker());
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The next command looks again.
  }
}

void UndoCommands::showState(std::string_view top) {
  ui::RepairTools& tools = parts_.form1.repair;
  tools.undoLastOperation.setEnabled(top == journal::kind::processing);
  tools.undo.setEnabled(top == journal::kind::processing);
  // A stop of Check+Fix lies within its pass. What other commands did since must be taken back first.
  tools.restoreAllChanges.setEnabled(top == journal::kind::checkFix || top == journal::kind::checkFixStop);
}

void UndoCommands::clearFileSelection() {
  parts_.form1.List4.clearSelection();
}

void UndoCommands::showCurrentRow() {
  const int row = parts_.table.currentRow;
  if (!parts_.table.hasRow(row)) return parts_.panel.clear();
  const ui::QuietLists quietly(parts_.table);
  parts_.panel.info(parts_.table.path(row), row);
  parts_.panel.showName(row);
}

}  // namespace velmora::undo
