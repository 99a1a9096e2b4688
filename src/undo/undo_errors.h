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
  /// The same for a step on one file, which the user may try again: a step that is tried again passes over
  /// what it did before.
  void attempt(const Text& path, const std::function<void()>& step) {
    for (;;) {
      try {
        return step();
      } catch (const platform::FileError& error) {
        const Text text = u"Error #" + core::plain(std::int64_t{error.number}) + u" while undoing { " + path +
                          u" } occurred: " + error.description;
        switch (dialogs_.failure(text, u"Undo", false).answer) {
          case platform::Answer::Retry:
            break;
          case platform::Answer::Abort:
            throw UndoCancelled();
          default:
            return;
        }
      }
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
