#pragma once

#include <optional>

#include "platform/text.h"

namespace velmora::platform {

enum class Buttons { Ok, OkCancel, YesNo, AbortRetryIgnore };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Cancel, Abort, Retry, Ignore, Yes, No };

/// The answer to a box about a failure.
struct FailureAnswer {
  Answer answer = Answer::Ignore;  ///< Abort, Retry or Ignore
  bool forAll = false;             ///< with Ignore: the same for all that follow in this command, unasked
};

/// Boxes that stop the program until the user answers. Closing a box without an answer counts as Cancel, No
/// or Ignore, whichever the buttons have; with Ok alone it counts as Ok.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual Answer message(const Text& text, const Text& title, Buttons buttons, Icon icon) = 0;
  /// A box about a file that a command failed at, with Abort, Retry and Ignore. With `manyFollow` it has a
  /// check box that takes Ignore for all that follow.
  virtual FailureAnswer failure(const Text& text, const Text& title, bool manyFollow) = 0;
  /// A message with OK alone. `details`, which may be long and may be empty, are shown on demand.
  virtual void report(const Text& text, const Text& title, const Text& details) = 0;
  /// A line of text from the user, or nothing after Cancel.
  virtual std::optional<Text> input(const Text& prompt, const Text& title, const Text& initial) = 0;
  /// A folder that exists, or nothing after Cancel. `start` is the folder shown first.
  virtual std::optional<Text> pickFolder(const Text& title, const Text& start) = 0;
};

}  // namespace velmora::platform
