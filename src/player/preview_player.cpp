#include "player/preview_player.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/number_text.h"
#include "ui/quiet_lists.h"

namespace velmora::player {

using platform::PlayState;

namespace {

/// Volume while the silent file is open in place of another.
constexpr int quietVolume = -4452;

Text twoDigits(int number) {
  return (number < 10 ? u"0" : u"") + core::plain(std::int64_t{number});
}

}  // namespace

int soundOfShare(double share) {
  share = std::clamp(share, 0.0, 1.0);
  const double sound = (std::log10(share + 0.0001) + 2) * 2500 - 5000;
  return std::clamp(static_cast<int>(core::roundHalfEven(sound)), -10000, 0);
}

Text timeText(double seconds) {
  if (!(seconds > 0)) seconds = 0;
  seconds = std::min(seconds, 1e6);
  return twoDigits(static_cast<int>((seconds + 0.5) / 60)) + u':' + twoDigits(static_cast<int>(seconds) % 60);
}

PreviewPlayer::PreviewPlayer(Parts parts) : parts_(std::move(parts)) {
  parts_.media.onPlayStateChange = [this](PlayState, PlayState now) { stateChanged(now); };
  enableControls();
}

void PreviewPlayer::playRow(int row) {
  if (!parts_.table.hasRow(row)) return;
  const Text path = parts_.table.path(row);
  playFile(path);
  parts_.panel.info(path, row);
}

void PreviewPlayer::playFile(const Text& path) {
  givenUp_.reset();
  parts_.media.setFile(path);
  parts_.media.setVolume(parts_.table.ton);
  parts_.media.play();
  enableControls();
  parts_.form1.statusLabel.setText(u"Now playing: " + path);
}

void PreviewPlayer::List4DoubleClick() {
  ui::Form1& form1 = parts_.form1;
  const int index = form1.List4.ListIndex();
  if (parts_.table.puniliste == 1 || index < 0) return;
  if (form1.ostali.chosen())
    parts_.desktop.openWithDefaultProgram(form1.List4.List(index));
  else {
    const int row = index + 1;
    playRow(row);
    // The panel shows the played file, so the name box must not keep another one's.
    const ui::QuietLists quietly(parts_.table);
    if (parts_.table.hasRow(row)) parts_.panel.showName(row);
  }
}

void PreviewPlayer::play() {
  if (givenUp_)
    givenUp_->state = PlayState::Playing;
  else
    parts_.media.play();
}

void PreviewPlayer::pause() {
  if (!givenUp_)
    parts_.media.pause();
  else if (givenUp_->state == PlayState::Playing)
    givenUp_->state = PlayState::Paused;
}

void PreviewPlayer::stop() {
  parts_.form1.player.position.setShare(0);
  if (givenUp_)
    givenUp_ = Remembered{};
  else
    parts_.media.stop();
}

void PreviewPlayer::stateChanged(PlayState now) {
  parts_.form1.player.Timer4.setOn(now == PlayState::Playing && !knobHeld_);
  if (now == PlayState::Playing && onPlaying) onPlaying();
  if (now == PlayState::Stopped && !givenUp_) showPosition(0);
  enableControls();
}

/// While the file is given up, the controls stay as they were: it comes back in a moment.
void PreviewPlayer::enableControls() {
  if (givenUp_) return;
  ui::PlayerPanel& controls = parts_.form1.player;
  const bool open = !parts_.media.file().empty();
  const PlayState state = parts_.media.state();
  controls.play.setEnabled(open && state != PlayState::Playing);
  controls.pause.setEnabled(state == PlayState::Playing);
  controls.stop.setEnabled(state != PlayState::Stopped);
  controls.position.setEnabled(open);
}

void PreviewPlayer::tick() {
  if (onTick) onTick();
  const double position = parts_.media.position();
  if (position == 0 || parts_.media.duration() == 0) return;
  showPosition(position);
}

void PreviewPlayer::showPosition(double seconds) {
  const double duration = parts_.media.duration();
  parts_.form1.player.position.setShare(duration > 0 ? std::clamp(seconds / duration, 0.0, 1.0) : 0);
  parts_.form1.player.time.setText(timeText(seconds));
}

void PreviewPlayer::positionPressed() {
  knobHeld_ = true;
  parts_.form1.player.Timer4.setOn(false);
}

void PreviewPlayer::positionMoved() {
  ui::PlayerPanel& controls = parts_.form1.player;
  controls.time.setText(timeText(parts_.media.duration() * controls.position.share()));
}

void PreviewPlayer::positionReleased() {
  knobHeld_ = false;
  parts_.media.setPosition(parts_.media.duration() * parts_.form1.player.position.share());
  parts_.form1.player.Timer4.setOn(parts_.media.state() == PlayState::Playing);
  parts_.form1.List4.takeFocus();
}

void PreviewPlayer::soundMoved() {
  parts_.table.ton = soundOfShare(parts_.form1.preview.share());
  if (!givenUp_) parts_.media.setVolume(parts_.table.ton);
}

double PreviewPlayer::durationOf(const Text& path) const {
  return holds(path) ? parts_.media.duration() : 0;
}

bool PreviewPlayer::holds(const Text& path) const {
  return !path.empty() && parts_.media.file() == path;
}

void PreviewPlayer::release() {
  givenUp_ = Remembered{parts_.media.position(), parts_.media.state()};
  parts_.media.setVolume(quietVolume);
  parts_.media.setFile(parts_.privateWav);
}

void PreviewPlayer::giveBack(const Text& path) {
  // Nothing to take back when the user made it play another file meanwhile.
  if (!givenUp_) return;
  const Remembered remembered = *std::exchange(givenUp_, std::nullopt);
  parts_.media.setFile(path);
  parts_.media.setVolume(parts_.table.ton);
  if (remembered.state != PlayState::Stopped) parts_.media.play();
  if (remembered.state == PlayState::Paused) parts_.media.pause();
  enableControls();
  if (remembered.position == 0) return;
  parts_.media.setPosition(remembered.position);
  showPosition(remembered.position);
}

void PreviewPlayer::close() {
  givenUp_.reset();
  parts_.media.stop();
  parts_.media.setFile(u"");
  enableControls();
}

}  // namespace velmora::player
