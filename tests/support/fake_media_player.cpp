#include "tests/support/fake_media_player.h"

#include <utility>

namespace velmora::test {

using platform::PlayState;

void FakeMediaPlayer::change(PlayState state) {
  const PlayState before = std::exchange(state_, state);
  if (before != state && onPlayStateChange) onPlayStateChange(before, state);
}

void FakeMediaPlayer::setFile(const Text& path) {
  file_ = path;
  position_ = 0;
  opened.push_back(path);
  change(PlayState::Stopped);
}

double FakeMediaPlayer::duration() const {
  const auto found = lengths_.find(file_);
  return found == lengths_.end() ? 0 : found->second;
}

void FakeMediaPlayer::play() {
  if (duration() > 0) change(PlayState::Playing);
}

void FakeMediaPlayer::pause() {
  if (state_ == PlayState::Playing) change(PlayState::Paused);
}

void FakeMediaPlayer::stop() {
  position_ = 0;
  change(PlayState::Stopped);
}

void FakeMediaPlayer::advance(double seconds) {
  if (state_ != PlayState::Playing) return;
  position_ += seconds;
  if (position_ >= duration()) stop();
}

}  // namespace velmora::test
