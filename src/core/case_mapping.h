#pragma once

namespace velmora::core {

/// Simple case mappings of one Unicode character; one without a partner, or a lone surrogate, stays as it is.
/// A character of the basic plane maps into the basic plane and one beyond it to one beyond it.
char32_t upperCharacter(char32_t character);
char32_t lowerCharacter(char32_t character);

}  // namespace velmora::core
