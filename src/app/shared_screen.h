#pragma once

#include "platform/desktop.h"
#include "ui/form2.h"
#include "ui/form3.h"

namespace velmora::app {

/// How the Music Base Window and the New Music Window stand on one screen: the one above the other.
class SharedScreen {
 public:
  SharedScreen(platform::Desktop& desktop, ui::Form3& base, ui::Form2& newMusic)
      : desktop_(desktop), base_(base), newMusic_(newMusic) {}

  /// Moves the Music Base Window up, and makes it lower where that does not do, so that the New Music Window
  /// finds its room beneath it. Does nothing while they share the screen already.
  void share();
  /// Gives the Music Base Window back the height, top and state that it had.
  void giveBack();

  /// Place and state of the Music Base Window when it has the screen for itself.
  ui::Placement basePlacement() const { return shared_ ? placement_ : base_.placement(); }
  ui::WindowState baseState() const { return shared_ ? state_ : base_.state(); }

 private:
  platform::Desktop& desktop_;
  ui::Form3& base_;
  ui::Form2& newMusic_;
  bool shared_ = false;
  ui::Placement placement_;
  ui::WindowState state_ = ui::WindowState::Normal;
};

}  // namespace velmora::app
