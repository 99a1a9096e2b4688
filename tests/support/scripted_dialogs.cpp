#include "tests/support/scripted_dialogs.h"

#include <gtest/gtest.h>
#include <utility>

#include "core/text.h"

namespace velmora::test {

using platform::Answer;

ScriptedDialogs::~ScriptedDialogs() {
  for (const Expected& left : script_) ADD_FAILURE() << "dialog never shown: " << core::toBytes(left.title);
}

void ScriptedDialogs::expect(Text text, Text title, Answer answer) {
  script_.push_back({Kind::Message, std::move(text), std::move(title), answer, {}});
}

void ScriptedDialogs::expectTitle(Text title, Answer answer) {
  script_.push_back({Kind::Message, {}, std::move(title), answer, {}});
}

void ScriptedDialogs::expectInput(Text prompt, Text title, std::optional<Text> answer) {
  script_.push_back({Kind::Input, std::move(prompt), std::move(title), Answer::Ok, std::move(answer)});
}

void ScriptedDialogs::expectFolder(Text title, std::optional<Text> answer) {
  script_.push_back({Kind::Folder, {}, std::move(title), Answer::Ok, std::move(answer)});
}

std::optional<ScriptedDialogs::Expected> ScriptedDialogs::take(Kind kind, const Text& text,
                                                               const Text& title) {
  if (script_.empty() || script_.front().kind != kind) {
    ADD_FAILURE() << "unexpected dialog \"" << core::toBytes(title) << "\": " << core::toBytes(text);
    return {};
  }
  Expected expected = std::move(script_.front());
  script_.pop_front();
  EXPECT_EQ(core::toBytes(title), core::toBytes(expected.title));
  if (expected.text) {
    EXPECT_EQ(core::toBytes(text), core::toBytes(*expected.text));
  }
  return expected;
}

Answer ScriptedDialogs::message(const Text& text, const Text& title, platform::Buttons buttons,
                                platform::Icon icon) {
  shown.push_back(text);
  lastIcon = icon;
  lastButtons = buttons;
  if (otherwise && (script_.empty() || script_.front().kind != Kind::Message)) return otherwise(buttons);
  if (const auto expected = take(Kind::Message, text, title)) return expected->answer;
  switch (buttons) {
    case platform::Buttons::Ok:
      return Answer::Ok;
    case platform::Buttons::OkCancel:
      return Answer::Cancel;
    case platform::Buttons::YesNo:
      return Answer::No;
    default:
      return Answer::Ignore;
  }
}

platform::FailureAnswer ScriptedDialogs::failure(const Text& text, const Text& title, bool manyFollow) {
  const Answer answer = message(text, title, platform::Buttons::AbortRetryIgnore, platform::Icon::Critical);
  return {answer, answer == Answer::Ignore && manyFollow && ignoreAll};
}

void ScriptedDialogs::report(const Text& text, const Text& title, const Text& details) {
  lastDetails = details;
  message(text, title, platform::Buttons::Ok, platform::Icon::Exclamation);
}

std::optional<Text> ScriptedDialogs::input(const Text& prompt, const Text& title, const Text&) {
  const auto expected = take(Kind::Input, prompt, title);
  return expected ? expected->given : std::nullopt;
}

std::optional<Text> ScriptedDialogs::pickFolder(const Text& title, const Text&) {
  const auto expected = take(Kind::Folder, {}, title);
  return expected ? expected->given : std::nullopt;
}

}  // namespace velmora::test
