#include "core/case_mapping.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace velmora::core {

namespace {

struct CaseRange {
  char32_t first;
  char32_t last;
  std::int32_t delta;
  char32_t step;
};

#include "core/case_table.inc"

constexpr char32_t applied(char32_t character, const CaseRange& range) {
  if (character < range.first || character > range.last) return character;
  if ((character - range.first) % range.step != 0) return character;
  return static_cast<char32_t>(static_cast<std::int32_t>(character) + range.delta);
}

template <std::size_t count>
char32_t search(char32_t character, const CaseRange (&ranges)[count]) {
  const auto* found = std::ranges::lower_bound(ranges, character, {}, &CaseRange::last);
  return found == std::end(ranges) ? character : applied(character, *found);
}

// The Latin, Greek and Cyrillic letters, which is nearly all that names hold, are mapped without a search.
constexpr char32_t flatEnd = 0x530;

template <std::size_t count>
constexpr std::array<char16_t, flatEnd> flatten(const CaseRange (&ranges)[count]) {
  std::array<char16_t, flatEnd> flat{};
  for (char32_t character = 0; character < flatEnd; ++character)
    flat[character] = static_cast<char16_t>(character);
  for (const CaseRange& range : ranges)
    for (char32_t character = range.first; character <= range.last && character < flatEnd;
         character += range.step)
      flat[character] = static_cast<char16_t>(applied(character, range));
  return flat;
}

constexpr auto flatUpper = flatten(upperRanges);
constexpr auto flatLower = flatten(lowerRanges);

}  // namespace

char32_t upperCharacter(char32_t character) {
  return character < flatEnd ? flatUpper[character] : search(character, upperRanges);
}

char32_t lowerCharacter(char32_t character) {
  return character < flatEnd ? flatLower[character] : search(character, lowerRanges);
}

}  // namespace velmora::core
