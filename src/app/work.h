#pragma once

#include <functional>

#include "core/track_table.h"

namespace velmora::app {

/// What runs at this moment. One command runs at a time, and what must not happen inside a command, such as
/// closing a window or ending the program, is put off until all has come to rest.
class Work {
 public:
  explicit Work(core::TrackTable& table) : table_(table) {}

  /// Raised when a command has returned, for its closing touches.
  std::function<void()> onCommandDone;

  /// Runs a command, unless another one runs. A file operation that fails ends the command in silence.
  void run(const std::function<void()>& command);
  /// Runs a wait for the user inside a command: while it lasts, other commands may run.
  void wait(const std::function<void()>& waiting);
  /// Runs `action` as soon as no command and no wait is left, at once when there is none. While it has to
  /// wait, Stop is set; a later action takes the place of an earlier one.
  void whenAtRest(std::function<void()> action);

  bool commandRunning() const { return commandRunning_; }
  bool atRest() const { return depth_ == 0; }

 private:
  class Level;
  static void perform(const std::function<void()>& command);
  void runPutOff();

  core::TrackTable& table_;
  int depth_ = 0;
  bool commandRunning_ = false;
  std::function<void()> putOff_;
};

}  // namespace velmora::app
