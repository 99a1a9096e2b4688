#pragma once

#include <functional>

#include "platform/text.h"
#include "ui/observable.h"

namespace velmora::ui {

enum class WindowState { Normal, Minimised, Maximised };

/// Place and size in twips (1/1440 inch).
struct Placement {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Placement&) const = default;
};

/// What every window has besides its controls. Windows start hidden and enabled. A disabled window lets
/// nothing through to its controls.
class Window : public Observable {
 public:
  explicit Window(Text caption) : caption_(std::move(caption)) {}

  /// Raised when the user brings the window to the front.
  std::function<void()> onActivate;
  /// Raised when the user asks to close the window, or closeRequest is called; without it the window hides.
  std::function<void()> onCloseRequest;

  bool visible() const { return visible_; }
  void show() { assign(visible_, true); }
  void hide() { assign(visible_, false); }
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { assign(enabled_, enabled); }
  WindowState state() const { return state_; }
  void setState(WindowState state) { assign(state_, state); }
  const Text& caption() const { return caption_; }
  void setCaption(Text caption) { assign(caption_, std::move(caption)); }
  /// Place of the window when it is neither minimised nor maximised; no width before a view or code set it.
  const Placement& placement() const { return placement_; }
  void setPlacement(const Placement& placement) { assign(placement_, placement); }
  /// Asks the view for the front and the focus; counts the requests.
  void bringToFront() { ++frontRequests_, changed(); }
  int frontRequests() const { return frontRequests_; }

  void closeRequest() {
    if (onCloseRequest) return onCloseRequest();
    hide();
  }

 protected:
  ~Window() = default;

 private:
  bool visible_ = false;
  bool enabled_ = true;
  WindowState state_ = WindowState::Normal;
  Text caption_;
  Placement placement_;
  int frontRequests_ = 0;
};

}  // namespace velmora::ui
