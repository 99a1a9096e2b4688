#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace velmora::test {

/// Dialogs that answer by a script. A dialog that the script does not expect fails the test, and so does an
/// answer left over at the end.
class ScriptedDialogs final : public platform::Dialogs {
 public:
  ~ScriptedDialogs() override;

  /// The next message must have this text and title; it gets `answer`.
  void expect(Text text, Text title, platform::Answer answer);
  /// The next message must have this title; its text is not compared.
  void expectTitle(Text title, platform::Answer answer);
  /// The next input box gets this answer; nothing means Cancel.
  void expectInput(Text prompt, Text title, std::optional<Text> answer);
  /// The next folder picker with this title gets this answer.
  void expectFolder(Text title, std::optional<Text> answer);

  /// Answers every message that is not expected, where the test gives it: no dialog is a failure then.
  std::function<platform::Answer(platform::Buttons)> otherwise;

  /// The messages shown so far, and the icon of the last.
  std::vector<Text> shown;
  /// Whether the check box of the next failures that offer one is ticked.
  bool ignoreAll = false;
  /// Details of the last report.
  Text lastDetails;
  platform::Icon lastIcon = platform::Icon::None;
  platform::Buttons lastButtons = platform::Buttons::Ok;

  platform::Answer message(const Text& text, const Text& title, platform::Buttons buttons,
                           platform::Icon icon) override;
  /// A failure is a message with Abort, Retry and Ignore; `ignoreAll` is what its check box says.
  platform::FailureAnswer failure(const Text& text, const Text& title, bool manyFollow) override;
  /// A report is a message with OK alone.
  void report(const Text& text, const Text& title, const Text& details) override;
  std::optional<Text> input(const Text& prompt, const Text& title, const Text& initial) override;
  std::optional<Text> pickFolder(const Text& title, const Text& start) override;

 private:
  enum class Kind { Message, Input, Folder };
  struct Expected {
    Kind kind;
    std::optional<Text> text;
    Text title;
    platform::Answer answer = platform::Answer::Ok;
    std::optional<Text> given;
  };
  std::optional<Expected> take(Kind kind, const Text& text, const Text& title);

  std::deque<Expected> script_;
};

}  // namespace velmora::test
