#include "ui/failures.h"

#include <utility>

namespace velmora::ui {

void Failures::during(const Words& words, std::size_t files, const std::function<void()>& command) {
  if (open_) return command();
  const auto end = [this, &words] {
    open_ = manyFollow_ = ignoreAll_ = false;
    // Who was asked about each file needs no list of them.
    const bool tell = std::exchange(leftUnasked_, false);
    NotDone left = std::exchange(left_, {});
    if (tell) left.say(dialogs_, words.title, words.one, words.many);
  };
  open_ = true;
  manyFollow_ = files > 1;
  try {
    command();
  } catch (...) {
    end();
    throw;
  }
  end();
}

platform::Answer Failures::ask(const Text& text, const Text& title, TextView path, TextView why) {
  if (ignoreAll_) {
    leaveOut(path, why);
    return platform::Answer::Ignore;
  }
  const platform::FailureAnswer said = dialogs_.failure(text, title, manyFollow_);
  if (said.answer == platform::Answer::Ignore && open_) {
    left_.add(path, why);
    ignoreAll_ = manyFollow_ && said.forAll;
  }
  return said.answer;
}

void Failures::leaveOut(TextView path, TextView why) {
  if (!open_) return;
  left_.add(path, why);
  leftUnasked_ = true;
}

}  // namespace velmora::ui
