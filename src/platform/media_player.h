#pragma once

#include <functional>

#include "platform/text.h"

namespace velmora::platform {

enum class PlayState { Stopped = 0, Paused = 1, Playing = 2 };

/// The one player of sound files. It makes no messages: a file that is missing or cannot be played leaves it
/// stopped, and so does the end of a file.
class MediaPlayer {
 public:
  virtual ~MediaPlayer() = default;

  /// Raised after each change of state, within the call that caused it where there was one.
  std::function<void(PlayState before, PlayState now)> onPlayStateChange;

  /// The path last set; empty when no file is open.
  virtual const Text& file() const = 0;
  /// Lets go of the file that was open before it returns, and opens another, stopped at its start. An empty
  /// path opens none.
  virtual void setFile(const Text& path) = 0;

  virtual PlayState state() const = 0;
  virtual void play() = 0;
  virtual void pause() = 0;
  /// Back to the start; the file stays open.
  virtual void stop() = 0;

  /// Seconds from the start.
  virtual double position() const = 0;
  /// Takes effect as soon as the file is loaded, when it is not yet.
  virtual void setPosition(double seconds) = 0;
  /// Length in seconds; 0 while it is not known.
  virtual double duration() const = 0;
  /// Hundredths of a decibel, from -10000 (silence) to 0.
  virtual void setVolume(int hundredthsOfDecibel) = 0;
};

}  // namespace velmora::platform
