#pragma once

#include <functional>

#include "ui/observable.h"

namespace velmora::ui {

/// A beat that the view gives for as long as it is on.
class Timer : public Observable {
 public:
  explicit Timer(int interval) : milliseconds_(interval) {}

  std::function<void()> onTick;

  /// Between two ticks. A new interval begins to count when it is set.
  int milliseconds() const { return milliseconds_; }
  void setMilliseconds(int interval) { assign(milliseconds_, interval); }
  bool on() const { return on_; }
  void setOn(bool on) { assign(on_, on); }
  void tick() {
    if (on_ && onTick) onTick();
  }

 private:
  int milliseconds_;
  bool on_ = false;
};

}  // namespace velmora::ui
