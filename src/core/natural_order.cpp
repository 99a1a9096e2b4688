#include "core/natural_order.h"

#include <algorithm>
#include <cstddef>

#include "core/text.h"

namespace velmora::core {

namespace {

bool isDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

/// Takes the digits at the start of `text` off it and returns them without leading zeros.
TextView takeNumber(TextView& text) {
  const std::size_t end = std::min(text.find_first_not_of(u"0123456789"), text.size());
  TextView number = text.substr(0, end);
  text.remove_prefix(end);
  number.remove_prefix(std::min(number.find_first_not_of(u'0'), number.size()));
  return number;
}

int compare(TextView left, TextView right) {
  return left == right ? 0 : left < right ? -1 : 1;
}

int compareNatural(TextView left, TextView right) {
  while (!left.empty() && !right.empty()) {
    if (isDigit(left.front()) && isDigit(right.front())) {
      const TextView first = takeNumber(left);
      const TextView second = takeNumber(right);
      if (first.size() != second.size()) return first.size() < second.size() ? -1 : 1;
      if (const int order = compare(first, second)) return order;
      continue;
    }
    const char16_t first = upper(left.front());
    const char16_t second = upper(right.front());
    if (first != second) return first < second ? -1 : 1;
    left.remove_prefix(1);
    right.remove_prefix(1);
  }
  return left.empty() ? (right.empty() ? 0 : -1) : 1;
}

}  // namespace

bool naturalLess(TextView left, TextView right) {
  const int order = compareNatural(left, right);
  return order == 0 ? left < right : order < 0;
}

}  // namespace velmora::core
