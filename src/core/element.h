#pragma once

#include <utility>
#include <variant>

#include "platform/text.h"

namespace velmora::core {

/// One element of a column: a text, a Boolean or nothing. All three survive a save and a load.
class Element {
 public:
  Element() = default;
  Element(Text text) : held_(std::move(text)) {}        // NOLINT(google-explicit-constructor)
  Element(TextView text) : held_(Text(text)) {}         // NOLINT(google-explicit-constructor)
  Element(const char16_t* text) : held_(Text(text)) {}  // NOLINT(google-explicit-constructor)
  Element(bool boolean) : held_(boolean) {}             // NOLINT(google-explicit-constructor)

  bool isNothing() const { return std::holds_alternative<std::monostate>(held_); }
  bool isText() const { return std::holds_alternative<Text>(held_); }
  bool isBoolean() const { return std::holds_alternative<bool>(held_); }

  /// The text; empty for a Boolean or nothing.
  const Text& text() const;
  /// Whether this is the Boolean True.
  bool isTrue() const;

  bool operator==(const Element&) const = default;

 private:
  std::variant<std::monostate, bool, Text> held_;
};

}  // namespace velmora::core
