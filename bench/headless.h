#pragma once

#include <memory>
#include <string>

#include "app/velmora.h"
#include "core/settings.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "system/desktop_trash.h"
#include "system/posix_files.h"

namespace velmora::bench {

/// A desktop with nobody in front of it. Pumping events costs what it costs in the real program: a look at
/// the clock, and something to do once per frame.
class QuietDesktop final : public platform::Desktop {
 public:
  void pumpEvents() override;
  /// There is nobody whom it would pay to wait for: throws.
  void waitForEvents() override;
  void sleep(int milliseconds) override;
  std::int64_t clockMilliseconds() override;
  int currentYear() override { return 2026; }
  platform::ScreenRoom screenRoom() override { return {}; }
  double random() override { return 0.5; }
  bool anotherInstanceRunning() override { return false; }
  bool lessMotion() override { return true; }
  int systemVersion() override { return 1000; }
  void openWithDefaultProgram(const Text&) override {}

 private:
  std::int64_t lastFrame_ = 0;
};

/// A player without sound: it keeps the file that it was given, and never plays.
class MutePlayer final : public platform::MediaPlayer {
 public:
  const Text& file() const override { return file_; }
  void setFile(const Text& path) override { file_ = path; }
  platform::PlayState state() const override { return platform::PlayState::Stopped; }
  void play() override {}
  void pause() override {}
  void stop() override {}
  double position() const override { return 0; }
  void setPosition(double) override {}
  double duration() const override { return 0; }
  void setVolume(int) override {}

 private:
  Text file_;
};

/// Dialogs that consent. What goes wrong is told on standard error.
class ConsentingDialogs final : public platform::Dialogs {
 public:
  platform::Answer message(const Text& text, const Text& title, platform::Buttons buttons,
                           platform::Icon icon) override;
  platform::FailureAnswer failure(const Text& text, const Text& title, bool manyFollow) override;
  void report(const Text& text, const Text& title, const Text& details) override;
  std::optional<Text> input(const Text& prompt, const Text& title, const Text& initial) override;
  std::optional<Text> pickFolder(const Text& title, const Text& start) override;
};

/// The real program without a toolkit, on a program folder of its own.
class HeadlessProgram {
 public:
  explicit HeadlessProgram(const std::string& stateFolder);
  ~HeadlessProgram();

  /// Settings.ini, for what a job wants set before the start.
  core::Settings& settings() { return settings_; }
  /// Comes up with the Processing Window in front and no tips.
  void start();
  void end() { program_->requestEnd(); }
  ui::Form1& form1() { return program_->windows().form1; }
  ui::Form2& form2() { return program_->windows().form2; }
  ui::Form3& form3() { return program_->windows().form3; }
  core::TrackTable& table() { return program_->table(); }

 private:
  system::PosixFiles files_;
  system::DesktopTrash trash_;
  QuietDesktop desktop_;
  ConsentingDialogs dialogs_;
  MutePlayer media_;
  core::Settings settings_;
  std::unique_ptr<app::Velmora> program_;
};

}  // namespace velmora::bench
