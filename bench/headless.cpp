#include "bench/headless.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <thread>

#include "core/paths.h"
#include "core/text.h"

namespace velmora::bench {
namespace {

constexpr std::int64_t frameMilliseconds = 16;

}  // namespace

void QuietDesktop::pumpEvents() {
  const std::int64_t now = clockMilliseconds();
  if (now - lastFrame_ < frameMilliseconds) return;
  lastFrame_ = now;
}

void QuietDesktop::waitForEvents() {
  throw std::runtime_error("the program waits for a user who is not there");
}

void QuietDesktop::sleep(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::int64_t QuietDesktop::clockMilliseconds() {
  using std::chrono::steady_clock;
  return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch())
      .count();
}

platform::Answer ConsentingDialogs::message(const Text& text, const Text& title, platform::Buttons buttons,
                                            platform::Icon icon) {
  using platform::Answer;
  using platform::Buttons;
  if (icon == platform::Icon::Critical) {
    std::fprintf(stderr, "[%s] %s\n", core::toBytes(title).c_str(), core::toBytes(text).c_str());
  }
  switch (buttons) {
    case Buttons::YesNo:
      return Answer::Yes;
    case Buttons::AbortRetryIgnore:
      return Answer::Ignore;
    default:
      return Answer::Ok;
  }
}

platform::FailureAnswer ConsentingDialogs::failure(const Text& text, const Text& title, bool) {
  return {message(text, title, platform::Buttons::AbortRetryIgnore, platform::Icon::Critical)};
}

void ConsentingDialogs::report(const Text& text, const Text& title, const Text& details) {
  message(text + details, title, platform::Buttons::Ok, platform::Icon::Critical);
}

std::optional<Text> ConsentingDialogs::input(const Text&, const Text&, const Text& initial) {
  return initial;
}

std::optional<Text> ConsentingDialogs::pickFolder(const Text&, const Text& start) {
  return start;
}

HeadlessProgram::HeadlessProgram(const std::string& stateFolder)
    : trash_(files_, core::fromBytes(stateFolder + "/Trash")),
      settings_(files_, core::fromBytes(stateFolder + "/Settings.ini")) {
  const Text folder = core::fromBytes(stateFolder);
  files_.makeFolder(folder);
  program_ = std::make_unique<app::Velmora>(app::Services{files_, trash_, dialogs_, desktop_, media_},
                                            app::Folders{folder, folder});
}

HeadlessProgram::~HeadlessProgram() = default;

void HeadlessProgram::start() {
  settings_.setNumber(u"aktivniprozor", 1);
  settings_.setBoolean(u"showtipsasstartup", false);
  program_->start();
}

}  // namespace velmora::bench
