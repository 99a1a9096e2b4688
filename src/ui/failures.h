#pragma once

#include <cstddef>
#include <functional>

#include "platform/dialogs.h"
#include "platform/text.h"
#include "ui/not_done.h"

namespace velmora::ui {

/// The boxes about files that a command failed at. While a command on many files runs, the user may say once
/// that all failures that follow are ignored; what was left out unasked is told in one message at its end.
class Failures {
 public:
  explicit Failures(platform::Dialogs& dialogs) : dialogs_(dialogs) {}

  /// The words of the message at the end, as in "3 files were not changed: Disk full."
  struct Words {
    Text title;
    Text one;   ///< such as "file was not changed"
    Text many;  ///< such as "files were not changed"
  };
  /// Runs a command that acts on `files` files, then tells what it left out, also when it throws. A command
  /// inside another one belongs to it.
  void during(const Words& words, std::size_t files, const std::function<void()>& command);

  /// Asks about a failure at the file `path`: Abort, Retry or Ignore, which is the answer without a box where
  /// the user ignores all. `why` is the cause in words.
  platform::Answer ask(const Text& text, const Text& title, TextView path, TextView why);
  /// A file that the command passes over without a box.
  void leaveOut(TextView path, TextView why);

  platform::Dialogs& dialogs() const { return dialogs_; }

 private:
  platform::Dialogs& dialogs_;
  bool open_ = false;
  bool manyFollow_ = false;
  bool ignoreAll_ = false;
  bool leftUnasked_ = false;
  NotDone left_;
};

}  // namespace velmora::ui
