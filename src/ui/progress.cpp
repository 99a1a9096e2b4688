#include "ui/progress.h"

#include <algorithm>

namespace velmora::ui {

namespace {

constexpr std::int64_t pumpGate = 3000;  // milliseconds

void toNormal(Window& window) {
  if (window.state() == WindowState::Minimised) window.setState(WindowState::Normal);
}

}  // namespace

Progress::Progress(core::TrackTable& table, Windows& windows, platform::Desktop& desktop)
    : table_(table), windows_(windows), desktop_(desktop) {}

void Progress::show(TextView text) {
  // Disabled before the pump, so that a second click that waits in the queue starts nothing.
  windows_.form1.setEnabled(false);
  if (!running_) {
    running_ = true;
    table_.Stop = false;
    windows_.dialog1.bar.setPercent(0);
  }
  windows_.dialog1.text.setText(text);
  pump();
  if (windows_.form1.state() != WindowState::Minimised) windows_.dialog1.show();
}

void Progress::UpdateProgress(double percent) {
  if (desktop_.clockMilliseconds() - lastPump_ >= pumpGate) pump();
  // An empty job divides by zero; what is no number counts as nothing done.
  windows_.dialog1.bar.setPercent(percent >= 0 ? std::min(percent, 100.0) : 0);
}

void Progress::pump() {
  desktop_.pumpEvents();
  lastPump_ = desktop_.clockMilliseconds();
}

void Progress::close() {
  if (!running_) return;
  running_ = false;
  windows_.dialog1.hide();
  if (inProcessingWindow()) {
    windows_.form1.setCaption(u"Procesing Window");
    toNormal(windows_.form1);
  } else if (inBaseWindow()) {
    toNormal(windows_.form3);
  }
}

void Progress::minimize() {
  if (!running_) return;
  if (inProcessingWindow()) {
    windows_.form1.setState(WindowState::Minimised);
    windows_.form1.show();
    windows_.form1.setCaption(u"Please Wait ...");
  } else if (inBaseWindow()) {
    windows_.form3.setState(WindowState::Minimised);
  }
  windows_.dialog1.hide();
}

void Progress::restore() {
  if (!running_ || windows_.dialog1.visible()) return;
  if (inProcessingWindow()) {
    toNormal(windows_.form1);
  } else if (inBaseWindow()) {
    toNormal(windows_.form3);
  }
  windows_.dialog1.show();
}

}  // namespace velmora::ui
