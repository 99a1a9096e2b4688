#pragma once

#include <functional>
#include <utility>

namespace velmora::ui {

/// Something that a view shows. The view, when there is one, sets `viewChanged` and hears of each change;
/// without a view nothing happens.
class Observable {
 public:
  Observable() = default;
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;

  std::function<void()> viewChanged;

 protected:
  ~Observable() = default;
  void changed() const {
    if (viewChanged) viewChanged();
  }
  /// Stores a value and tells the view only when it differs. Returns whether it did.
  template <typename T, typename U>
  bool assign(T& member, U&& value) {
    if (member == value) return false;
    member = std::forward<U>(value);
    changed();
    return true;
  }
};

}  // namespace velmora::ui
