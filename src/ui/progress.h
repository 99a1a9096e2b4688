#pragma once

#include <cstdint>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "ui/windows.h"

namespace velmora::ui {

/// The progress of a long command: shows Dialog1, moves its bar, and gives way to the window system on a
/// regular beat.
class Progress {
 public:
  Progress(core::TrackTable& table, Windows& windows, platform::Desktop& desktop);

  /// Pumps events, clears Stop, disables the Processing Window and shows Dialog1 with `text`, unless the
  /// Processing Window is minimised.
  void show(Text text);
  /// Changes the text of a progress window that is shown.
  void setText(Text text) { windows_.dialog1.text.setText(std::move(text)); }
  /// Moves the bar to a percentage. Pumps events first when 3 seconds have passed since the last pump, so it
  /// may be called for every row.
  void UpdateProgress(double percent);
  /// Gives way to the window system at once.
  void pump();
  /// Hides Dialog1 and puts the windows back; the Processing Window stays disabled until `moze`.
  void close();
  bool shown() const { return running_; }

  /// The buttons of Dialog1.
  void minimize();
  void stop() { table_.Stop = true; }
  /// When the Processing Window is brought back while a progress window is hidden.
  void restore();

 private:
  core::TrackTable& table_;
  Windows& windows_;
  platform::Desktop& desktop_;
  std::int64_t lastPump_ = 0;  // milliseconds
  bool running_ = false;
};

}  // namespace velmora::ui
