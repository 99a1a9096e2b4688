#pragma once

#include <functional>
#include <optional>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "platform/hand_over.h"
#include "platform/media_player.h"
#include "tags/file_panel.h"
#include "ui/form1.h"

namespace velmora::player {

/// Sound in hundredths of a decibel for a knob at `share` (0 to 1) of its track: -10000 at the start, 0 at
/// the end, with the logarithm between.
int soundOfShare(double share);
/// Two digits of minutes, ":" and two digits of seconds.
Text timeText(double seconds);

/// The preview player: plays rows, follows the position, and gives up its file to whoever changes it.
class PreviewPlayer final : public platform::FileHolder {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::MediaPlayer& media;
    platform::Desktop& desktop;
    tags::FilePanel& panel;
    ui::Form1& form1;
    Text privateWav;  ///< full path of the silent file that is played meanwhile
  };
  explicit PreviewPlayer(Parts parts);

  /// Raised when the preview player begins to play: the external player is stopped then.
  std::function<void()> onPlaying;
  /// Raised at each tick, before the position is shown.
  std::function<void()> onTick;

  /// Plays the file of any row, shows it in the panel and says so in the status label.
  void playRow(int row);
  /// Plays a file that belongs to no row, and says so in the status label.
  void playFile(const Text& path);
  /// Double click on the file list: plays the row, or opens another file with its own program.
  void List4DoubleClick();

  void play();
  void pause();
  void stop();
  /// The beat of Timer4: moves the knob and shows the time.
  void tick();

  // The position slider.
  void positionPressed();
  void positionMoved();
  void positionReleased();
  /// The sound slider: sets `ton` and the volume by the place of its knob.
  void soundMoved();

  /// Length in seconds of the file that is open; 0 for any other path.
  double durationOf(const Text& path) const;

  bool holds(const Text& path) const override;
  void release() override;
  void giveBack(const Text& path) override;
  void close() override;

 private:
  void stateChanged(platform::PlayState now);
  void showPosition(double seconds);
  void enableControls();

  /// What was heard when the file was given up.
  struct Remembered {
    double position = 0;  // seconds
    platform::PlayState state = platform::PlayState::Stopped;
  };

  Parts parts_;
  std::optional<Remembered> givenUp_;
  bool knobHeld_ = false;
};

}  // namespace velmora::player
