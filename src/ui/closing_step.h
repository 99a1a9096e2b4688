#pragma once

#include <functional>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::ui {

/// The shared closing step at the end of nearly every command of the Processing Window.
class ClosingStep {
 public:
  ClosingStep(core::TrackTable& table, ui::Windows& windows, ui::Progress& progress,
              platform::Desktop& desktop);

  /// Shows the counts, ends the progress window, enables the Processing Window, lets clicks through again
  /// (`puniliste` 0) and gives the window the focus.
  void moze();
  /// Runs a command and then moze, however the command ended, so that no error leaves a window disabled. A
  /// FileError that the command does not handle ends it without a word.
  void run(const std::function<void()>& command);

 private:
  core::TrackTable& table_;
  ui::Windows& windows_;
  ui::Progress& progress_;
  platform::Desktop& desktop_;
};

}  // namespace velmora::ui
