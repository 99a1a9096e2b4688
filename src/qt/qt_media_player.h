#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QTimer>

#include "platform/media_player.h"

class QAudioOutput;
class QFile;
class QMediaPlayer;

namespace velmora::qt {

/// The toolkit's player. It is made when the first file is to be played, since it brings a whole framework
/// along, and it works, silently, without a sound device.
///
/// The framework loses its way when it is handed file upon file, or is sent to a place while it still loads.
/// So a file is opened from the event loop, shortly after it was to be played, and a place is asked for until
/// it is reached.
class QtMediaPlayer final : public QObject, public platform::MediaPlayer {
  Q_OBJECT

 public:
  QtMediaPlayer();
  ~QtMediaPlayer() override;

  const Text& file() const override { return file_; }
  void setFile(const Text& path) override;
  platform::PlayState state() const override { return state_; }
  void play() override;
  void pause() override;
  void stop() override;
  double position() const override;
  void setPosition(double seconds) override;
  double duration() const override;
  void setVolume(int hundredthsOfDecibel) override;

 private:
  void make();
  /// Opens the file and plays or pauses it, whichever is wanted by now.
  void start();
  void letGo();
  /// Whether the player knows enough of its file to be sent to a place in it.
  bool loaded() const;
  void seek();
  void takeState();
  void takeStatus();
  void enter(platform::PlayState state);

  Text file_;
  platform::PlayState state_ = platform::PlayState::Stopped;
  double volume_ = 1;  // linear
  QTimer starting_;    // runs out when the file is to be opened
  QTimer seeking_;
  std::optional<double> wantedPosition_;  // seconds, until the player has got there
  int seeksLeft_ = 0;
  std::unique_ptr<QFile> device_;  // open while the player has the file; outlives the player
  std::unique_ptr<QAudioOutput> output_;
  std::unique_ptr<QMediaPlayer> player_;
};

}  // namespace velmora::qt
