#include "core/element.h"

namespace velmora::core {

const Text& Element::text() const {
  static const Text empty;
  const Text* text = std::get_if<Text>(&held_);
  return text ? *text : empty;
}

bool Element::isTrue() const {
  const bool* boolean = std::get_if<bool>(&held_);
  return boolean && *boolean;
}

}  // namespace velmora::core
