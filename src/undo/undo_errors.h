#pragma once

#include <functional>

#include "core/number_text.h"
#include "platform/dialogs.h"
#include "platform/file_error.h"

namespace velmora::undo {

/// The user does not want to go on undoing after an error.
struct UndoCancelled {};

/// What happens when something unexpected goes wrong while changes are taken back: the user is asked whether
/// to go on with what comes next.
class UndoErrors {
 public:
  explicit UndoErrors(platform::Dialogs& dialogs) : dialogs_(dialogs) {}

  /// Runs one step. A FileError is shown, and the step is then over; throws UndoCancelled when the user does
  /// not go on.
  void attempt(const std::function<void()>& step) {
    try {
      step();
    } catch (const platform::FileError& error) {
      report(error.number, error.description);
    }
  }
  /// Shows an error; throws UndoCancelled when the user does not go on.
  void report(int number, const Text& description) {
    const auto answer =
        dialogs_.message(u"Unexpected error #" + core::plain(std::int64_t{number}) + u" occurred: " +
                             description + u"  Do you want to continue with undo operations (recomended)?",
                         u"Undo", platform::Buttons::OkCancel, platform::Icon::Critical);
    if (answer != platform::Answer::Ok) throw UndoCancelled();
  }

 private:
  platform::Dialogs& dialogs_;
};

}  // namespace velmora::undo
