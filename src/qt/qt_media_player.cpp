#include "qt/qt_media_player.h"

#include <algorithm>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

#include <QAudioOutput>
#include <QFile>
#include <QMediaPlayer>
#include <QUrl>

#include "core/text.h"

namespace velmora::qt {

using platform::PlayState;

namespace {

constexpr double milliseconds = 1000;
constexpr int silence = -10000;  // hundredths of a decibel
constexpr int seekTries = 40;    // a file that cannot be sought in plays from where it is
constexpr int startDelay = 20;   // milliseconds

/// Whether there is something to play. No pipe is ever opened.
bool playable(const Text& path) {
  struct stat status;
  return ::stat(core::toBytes(path).c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

/// A file as an open device, by its native bytes: names that are no valid UTF-8 open like any other.
std::unique_ptr<QFile> openDevice(const Text& path) {
  if (!playable(path)) return nullptr;
  const int descriptor = ::open(core::toBytes(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return nullptr;
  auto device = std::make_unique<QFile>();
  device->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
  return device;
}

}  // namespace

QtMediaPlayer::QtMediaPlayer() {
  starting_.setSingleShot(true);
  starting_.setInterval(startDelay);
  connect(&starting_, &QTimer::timeout, this, [this] { start(); });
  seeking_.setInterval(50);
  connect(&seeking_, &QTimer::timeout, this, [this] { seek(); });
}

QtMediaPlayer::~QtMediaPlayer() {
  onPlayStateChange = nullptr;
  letGo();
}

void QtMediaPlayer::make() {
  output_ = std::make_unique<QAudioOutput>();
  player_ = std::make_unique<QMediaPlayer>();
  player_->setAudioOutput(output_.get());
  output_->setVolume(static_cast<float>(volume_));
  connect(player_.get(), &QMediaPlayer::playbackStateChanged, this, [this] { takeState(); });
  connect(player_.get(), &QMediaPlayer::mediaStatusChanged, this, [this] { takeStatus(); });
  // Queued, since a player must not be stopped from within its own failure.
  connect(
      player_.get(), &QMediaPlayer::errorOccurred, this, [this] { stop(); }, Qt::QueuedConnection);
}

void QtMediaPlayer::setFile(const Text& path) {
  file_ = path;
  letGo();
  enter(PlayState::Stopped);
}

/// Stopping alone keeps the file open; an empty source does not.
void QtMediaPlayer::letGo() {
  starting_.stop();
  seeking_.stop();
  wantedPosition_.reset();
  if (!device_) return;
  player_->stop();
  player_->setSource(QUrl());
  device_.reset();
}

void QtMediaPlayer::play() {
  if (device_) return player_->play();
  if (!playable(file_)) return;
  if (!starting_.isActive()) starting_.start();
  enter(PlayState::Playing);
}

void QtMediaPlayer::pause() {
  if (state_ != PlayState::Playing) return;
  if (device_)
    player_->pause();
  else
    enter(PlayState::Paused);
}

void QtMediaPlayer::stop() {
  starting_.stop();
  wantedPosition_.reset();
  if (device_) player_->stop();
  enter(PlayState::Stopped);
}

void QtMediaPlayer::start() {
  device_ = openDevice(file_);
  if (!device_) return stop();
  if (!player_) make();
  const bool paused = state_ == PlayState::Paused;
  // The name only tells the kind of file; the bytes come from the device.
  player_->setSourceDevice(device_.get(), QUrl(QStringLiteral("file:///song.mp3")));
  paused ? player_->pause() : player_->play();
  seek();
}

bool QtMediaPlayer::loaded() const {
  const auto status = player_->mediaStatus();
  return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::BufferedMedia ||
         status == QMediaPlayer::BufferingMedia;
}

double QtMediaPlayer::position() const {
  if (wantedPosition_) return *wantedPosition_;
  // A file that came to its end would go on telling that place.
  return !device_ || state_ == PlayState::Stopped ? 0
                                                  : static_cast<double>(player_->position()) / milliseconds;
}

void QtMediaPlayer::setPosition(double seconds) {
  if (file_.empty() || !(seconds >= 0)) return;
  wantedPosition_ = seconds;
  seeksLeft_ = seekTries;
  seek();
}

void QtMediaPlayer::seek() {
  if (!wantedPosition_ || !device_) return seeking_.stop();  // a file that is opened later seeks then
  seeking_.start();
  if (!loaded()) return;
  const double place = static_cast<double>(player_->position()) / milliseconds;
  const bool there = seeksLeft_ < seekTries && std::abs(place - *wantedPosition_) < 1;
  if (there || seeksLeft_ == 0) {
    wantedPosition_.reset();
    return seeking_.stop();
  }
  --seeksLeft_;
  player_->setPosition(static_cast<qint64>(*wantedPosition_ * milliseconds));
}

double QtMediaPlayer::duration() const {
  return device_ ? std::max(0.0, static_cast<double>(player_->duration()) / milliseconds) : 0;
}

void QtMediaPlayer::setVolume(int hundredthsOfDecibel) {
  const int sound = std::clamp(hundredthsOfDecibel, silence, 0);
  volume_ = sound == silence ? 0 : std::pow(10.0, sound / 2000.0);
  if (output_) output_->setVolume(static_cast<float>(volume_));
}

void QtMediaPlayer::takeState() {
  switch (player_->playbackState()) {
    case QMediaPlayer::PlayingState:
      return enter(PlayState::Playing);
    case QMediaPlayer::PausedState:
      return enter(PlayState::Paused);
    default:
      return enter(PlayState::Stopped);
  }
}

void QtMediaPlayer::takeStatus() {
  if (player_->mediaStatus() == QMediaPlayer::InvalidMedia)
    QMetaObject::invokeMethod(
        this, [this] { stop(); }, Qt::QueuedConnection);
  else
    seek();
}

void QtMediaPlayer::enter(PlayState state) {
  const PlayState before = std::exchange(state_, state);
  if (before != state && onPlayStateChange) onPlayStateChange(before, state);
}

}  // namespace velmora::qt
