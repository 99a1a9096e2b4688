#include "tests/support/scripted_desktop.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace velmora::test {

ScriptedDesktop::~ScriptedDesktop() {
  if (!actions_.empty()) ADD_FAILURE() << actions_.size() << " scripted user actions never came to pass";
}

bool ScriptedDesktop::runNext() {
  if (actions_.empty()) return false;
  const auto action = std::move(actions_.front());
  actions_.pop_front();
  action();
  return true;
}

void ScriptedDesktop::pumpEvents() {
  ++pumps;
  runNext();
}

void ScriptedDesktop::waitForEvents() {
  if (runNext()) return;
  ADD_FAILURE() << "the program waits for the user, but the script has no more actions";
  throw std::runtime_error("scripted user ran dry");
}

void ScriptedDesktop::sleep(int milliseconds) {
  sleeps.push_back(milliseconds);
  now += milliseconds;
}

}  // namespace velmora::test
