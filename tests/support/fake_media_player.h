#pragma once

#include <map>
#include <vector>

#include "platform/media_player.h"

namespace velmora::test {

/// A player whose clock the test drives. It knows the files that the test gave it and can play no others.
class FakeMediaPlayer final : public platform::MediaPlayer {
 public:
  /// Makes a file playable.
  void know(const Text& path, double seconds) { lengths_[path] = seconds; }
  /// Lets time pass; a file that comes to its end stops.
  void advance(double seconds);

  int volume = 0;
  /// Every path that setFile was given, in order.
  std::vector<Text> opened;

  const Text& file() const override { return file_; }
  void setFile(const Text& path) override;
  platform::PlayState state() const override { return state_; }
  void play() override;
  void pause() override;
  void stop() override;
  double position() const override { return position_; }
  void setPosition(double seconds) override { position_ = seconds; }
  double duration() const override;
  void setVolume(int hundredthsOfDecibel) override { volume = hundredthsOfDecibel; }

 private:
  void change(platform::PlayState state);

  std::map<Text, double> lengths_;
  Text file_;
  platform::PlayState state_ = platform::PlayState::Stopped;
  double position_ = 0;
};

}  // namespace velmora::test
