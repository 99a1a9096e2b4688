#pragma once

#include <optional>
#include <string_view>

#include "core/settings.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "newmusic/move_summary.h"
#include "newmusic/window_snapshot.h"
#include "rows/row_keeper.h"
#include "ui/progress.h"
#include "ui/windows.h"
#include "undo/replay.h"

namespace velmora::newmusic {

/// "Undo Last Operation" of the New Music Window, and its button.
class NewMusicUndo {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    ui::Windows& windows;
    ui::Progress& progress;
    journal::UndoJournal& journal;
    undo::Replay& replay;
    rows::RowKeeper& rows;
    MoveSummary& summary;
    WindowSnapshot& snapshot;
  };
  explicit NewMusicUndo(const Parts& parts) : parts_(parts) {}

  void undoLastOperation();
  /// Enables the button by what stands on top of the journal.
  void showState() { showState(parts_.journal.lastUndoMarker()); }
  /// The same for a journal whose topmost marker is known.
  void showState(std::string_view top) {
    parts_.windows.form2.undoLastOperation.setEnabled(top == journal::kind::newMusic);
  }
  /// A replay came to the snapshot of both windows: it is put back when the replay is over.
  void windowState(const Text& snapshot) { reached_ = snapshot; }

 private:
  Parts parts_;
  std::optional<Text> reached_;
};

}  // namespace velmora::newmusic
