#pragma once

#include <cstdint>
#include <utility>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "ui/windows.h"

namespace velmora::ui {

/// The progress of a long command: shows Dialog1, moves its bar, and gives way to the window system on a
/// regular beat.
class Progress {
 public:
  Progress(core::TrackTable& table, Windows& windows, platform::Desktop& desktop);

  /// Disables the Processing Window, pumps events, and shows Dialog1 with `text` unless the Processing Window
  /// is minimised. The first call of a run clears Stop and empties the bar.
  void show(TextView text);
  /// Changes the text of a progress window that is shown.
  void setText(TextView text) { windows_.dialog1.text.setText(text); }
  /// Moves the bar to a percentage. Pumps events first when 3 seconds have passed since the last pump, so it
  /// may be called for every row.
  void UpdateProgress(double percent);
  /// Gives way to the window system at once.
  void pump();
  /// Ends the run: hides Dialog1 and puts minimised windows back. The Processing Window stays disabled until
  /// `moze`.
  void close();
  /// Whether a run is on, be its window in sight or not.
  bool shown() const { return running_; }

  /// The buttons of Dialog1.
  void minimize();
  void stop() { table_.Stop = true; }
  /// The window that was minimised is brought back while the progress window is hidden.
  void restore();

 private:
  bool inProcessingWindow() const { return table_.aktivniprozor == core::WindowAtWork::Processing; }
  bool inBaseWindow() const {
    return !inProcessingWindow() && table_.aktivniprozor != core::WindowAtWork::NotYetKnown;
  }

  core::TrackTable& table_;
  Windows& windows_;
  platform::Desktop& desktop_;
  std::int64_t lastPump_ = 0;  // milliseconds
  bool running_ = false;
};

}  // namespace velmora::ui
