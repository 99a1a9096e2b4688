#pragma once

#include "app/base_window.h"
#include "app/shared_screen.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "newmusic/move_summary.h"
#include "newmusic/new_music_lists.h"
#include "newmusic/new_music_state.h"
#include "newmusic/new_music_undo.h"
#include "ui/windows.h"

namespace velmora::app {

/// How the New Music Window comes and goes beside the Music Base Window.
class NewMusicWindow {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    ui::Windows& windows;
    newmusic::NewMusicLists& lists;
    newmusic::NewMusicState& state;
    newmusic::MoveSummary& summary;
    newmusic::NewMusicUndo& undo;
    BaseWindow& base;
    SharedScreen& screen;
  };
  explicit NewMusicWindow(const Parts& parts) : parts_(parts) {}

  /// "Show New Music Window", and "Hide" while it is open.
  void toggle();
  void open();
  /// The user is done with it: it is not opened again at the next start.
  void close();
  /// Hides it while the Processing Window is in front, and keeps what it showed.
  void stepAside();
  /// The program ends: what it showed is stored, and it comes up again at the next start.
  void unload();
  /// There is nothing to show any more: it is as if it had been closed.
  void forget();

 private:
  void load();
  void leave();
  bool isOpen() const { return parts_.windows.form2.visible(); }

  Parts parts_;
};

}  // namespace velmora::app
