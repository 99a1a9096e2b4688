#pragma once

#include <functional>

#include "platform/text.h"
#include "ui/observable.h"

namespace velmora::ui {

enum class WindowState { Normal, Minimised, Maximised };

/// Place and size in twips (1/1440 inch). A width of 0 leaves the size to the view; with left and top 0 as
/// well it leaves the place to the view too. The view keeps a window on the screen whatever is asked.
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
  /// Raised when the window loses the front.
  std::function<void()> onDeactivate;
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
  /// Place of the window when it is neither minimised nor maximised. The view keeps it up to date as the user
  /// moves and sizes the window.
  const Placement& placement() const { return placement_; }
  void setPlacement(const Placement& placement) { assign(placement_, placement); }
  /// What title and border add to the height of the placement on the screen, in twips: an estimate until the
  /// view knows. A window beneath this one starts at top + height + frameHeight.
  int frameHeight() const { return frameHeight_; }
  void setFrameHeight(int height) { frameHeight_ = height; }
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
  int frameHeight_ = 540;
  int frontRequests_ = 0;
};

}  // namespace velmora::ui
