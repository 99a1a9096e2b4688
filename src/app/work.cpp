#include "app/work.h"

#include <utility>

#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::app {

/// One command or wait on the stack of what runs.
class Work::Level {
 public:
  Level(Work& work, bool command) : work_(work), before_(work.commandRunning_) {
    ++work_.depth_;
    work_.commandRunning_ = command;
  }
  ~Level() {
    --work_.depth_;
    work_.commandRunning_ = before_;
  }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;

 private:
  Work& work_;
  bool before_;
};

void Work::perform(const std::function<void()>& command) {
  try {
    command();
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The command ends here, its work done as far as it got.
  }
}

void Work::run(const std::function<void()>& command) {
  if (commandRunning_) return;
  {
    const Level level(*this, true);
    if (depth_ == 1) table_.Stop = false;
    perform(command);
    if (onCommandDone) onCommandDone();
  }
  runPutOff();
}

void Work::wait(const std::function<void()>& waiting) {
  {
    const Level level(*this, false);
    waiting();
  }
  runPutOff();
}

void Work::whenAtRest(std::function<void()> action) {
  putOff_ = std::move(action);
  if (depth_ > 0) {
    table_.Stop = true;
  } else {
    runPutOff();
  }
}

void Work::runPutOff() {
  while (depth_ == 0 && putOff_) {
    const auto action = std::exchange(putOff_, nullptr);
    const Level level(*this, true);
    perform(action);
  }
}

}  // namespace velmora::app
