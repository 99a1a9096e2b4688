#pragma once

#include <utility>

#include "platform/text.h"

namespace velmora::core {

/// One element of a column: a text, a Boolean or nothing. All three survive a save and a load.
///
/// The size of one pointer, since most elements of a large table hold nothing: a row whose tags were never
/// read must cost next to nothing.
class Element {
 public:
  Element() = default;
  Element(Text text) : held_(new Text(std::move(text))) {}  // NOLINT(google-explicit-constructor)
  Element(TextView text) : held_(new Text(text)) {}         // NOLINT(google-explicit-constructor)
  Element(const char16_t* text) : held_(new Text(text)) {}  // NOLINT(google-explicit-constructor)
  Element(bool boolean) : held_(mark(boolean)) {}           // NOLINT(google-explicit-constructor)

  Element(const Element& other) : held_(other.isText() ? new Text(*other.held_) : other.held_) {}
  Element(Element&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
  Element& operator=(Element other) noexcept {
    std::swap(held_, other.held_);
    return *this;
  }
  ~Element() {
    if (isText()) delete held_;
  }

  bool isNothing() const { return held_ == nullptr; }
  bool isText() const { return held_ && !isBoolean(); }
  bool isBoolean() const { return held_ == mark(true) || held_ == mark(false); }

  /// The text; empty for a Boolean or nothing.
  const Text& text() const { return isText() ? *held_ : empty; }
  /// Whether this is the Boolean True.
  bool isTrue() const { return held_ == mark(true); }

  bool operator==(const Element& other) const {
    return held_ == other.held_ || (isText() && other.isText() && *held_ == *other.held_);
  }

 private:
  // The Booleans are two addresses that no text of an element has.
  static const Text marks[2];
  static const Text empty;
  static const Text* mark(bool boolean) { return &marks[boolean ? 1 : 0]; }

  const Text* held_ = nullptr;
};

}  // namespace velmora::core
