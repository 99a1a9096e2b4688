#pragma once

#include <optional>

#include "platform/text.h"

namespace velmora::platform {

enum class Buttons { Ok, OkCancel, YesNo, AbortRetryIgnore };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Cancel, Abort, Retry, Ignore, Yes, No };

/// Boxes that stop the program until the user answers. Closing a box without an answer counts as Cancel, No
/// or Ignore, whichever the buttons have; with Ok alone it counts as Ok.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual Answer message(const Text& text, const Text& title, Buttons buttons, Icon icon) = 0;
  /// A line of text from the user, or nothing after Cancel.
  virtual std::optional<Text> input(const Text& prompt, const Text& title, const Text& initial) = 0;
  /// A folder that exists, or nothing after Cancel. `start` is the folder shown first.
  virtual std::optional<Text> pickFolder(const Text& title, const Text& start) = 0;
};

}  // namespace velmora::platform
