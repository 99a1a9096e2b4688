#pragma once

#include "app/base_window.h"
#include "app/events.h"
#include "app/new_music_window.h"
#include "app/work.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/dialogs.h"
#include "ui/closing_step.h"
#include "ui/windows.h"

namespace velmora::app {

/// The roads from one main window to another.
class FrontWindow {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    ui::ClosingStep& closing;
    BaseWindow& base;
    NewMusicWindow& newMusic;
    Events& events;
    const Work& work;
  };
  explicit FrontWindow(const Parts& parts) : parts_(parts) {}

  /// Hides the Processing Window and brings up the Music Base Window.
  void showBase();
  /// "Show Processing Window".
  void showProcessing();
  /// Assort Files Per Folders: on to the Music Base Window, with the working list where there is one.
  void assort();
  /// The user closes the Processing Window: it only hides, and the Music Base Window comes up. A review that
  /// runs is ended first, if the user agrees.
  void closeProcessing();
  // The window system told that the Music Base Window or the New Music Window came to the front. While a
  // command runs `aktivniprozor` is the command's own, and the notice counts when it is done.
  void baseActivated();
  void newMusicActivated();
  /// A command is done.
  void settle();

 private:
  void activated(core::WindowAtWork window);
  void offerBaseFolder();

  Parts parts_;
  /// The window of the last notice, until it counts.
  core::WindowAtWork activated_ = core::WindowAtWork::NotYetKnown;
};

}  // namespace velmora::app
