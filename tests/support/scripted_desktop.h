#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace velmora::test {

/// A desktop whose user is a script. Time stands still unless the test or a sleep moves it.
class ScriptedDesktop final : public platform::Desktop {
 public:
  ~ScriptedDesktop() override;

  /// What the user does at the next pump or wait that comes; one action each, in order.
  void then(std::function<void()> action) { actions_.push_back(std::move(action)); }

  std::int64_t now = 0;  ///< milliseconds
  double nextRandom = 0;
  bool calm = true;  ///< the user asked for less motion
  bool anotherInstance = false;
  int version = 1000;
  int year = 2026;
  platform::ScreenRoom room;
  int pumps = 0;
  std::vector<int> sleeps;  ///< milliseconds
  std::vector<Text> opened;

  void pumpEvents() override;
  /// A script that runs dry fails the test and throws, rather than waiting for ever.
  void waitForEvents() override;
  void sleep(int milliseconds) override;
  std::int64_t clockMilliseconds() override { return now; }
  int currentYear() override { return year; }
  platform::ScreenRoom screenRoom() override { return room; }
  bool lessMotion() override { return calm; }
  double random() override { return nextRandom; }
  bool anotherInstanceRunning() override { return anotherInstance; }
  int systemVersion() override { return version; }
  void openWithDefaultProgram(const Text& pathOrPage) override { opened.push_back(pathOrPage); }

 private:
  bool runNext();
  std::deque<std::function<void()>> actions_;
};

}  // namespace velmora::test
