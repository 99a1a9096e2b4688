#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "core/text.h"

namespace velmora::core {

namespace {

constexpr int significantDigits = 15;

Text withSignPlace(Text digits) {
  return digits.starts_with(u'-') ? digits : u' ' + digits;
}

bool isDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

bool isBlank(char16_t character) {
  return character == u' ' || character == u'\t' || character == u'\r' || character == u'\n';
}

/// Collects the characters of a number, without the blanks between them, in the form of std::from_chars.
class NumberScan {
 public:
  explicit NumberScan(TextView text) : text_(text) { skipBlanks(); }

  std::string run() {
    if (takeAnyOf(u"-")) {
      number_ = "-";
    } else {
      takeAnyOf(u"+");
    }
    int digits = takeDigits();
    if (takeAnyOf(u".")) {
      number_ += '.';
      digits += takeDigits();
    }
    if (digits == 0) return {};
    takeExponent();
    return number_;
  }

 private:
  void skipBlanks() {
    while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
  }

  bool takeAnyOf(TextView wanted) {
    if (at_ >= text_.size() || wanted.find(text_[at_]) == TextView::npos) return false;
    ++at_;
    skipBlanks();
    return true;
  }

  int takeDigits() {
    int count = 0;
    for (; at_ < text_.size() && isDigit(text_[at_]); ++count) {
      number_ += static_cast<char>(text_[at_++]);
      skipBlanks();
    }
    return count;
  }

  /// An exponent that has no digits is no part of the number.
  void takeExponent() {
    const std::size_t withoutExponent = number_.size();
    if (!takeAnyOf(u"eEdD")) return;
    number_ += 'e';
    if (takeAnyOf(u"-")) {
      number_ += '-';
    } else {
      takeAnyOf(u"+");
    }
    if (takeDigits() == 0) number_.resize(withoutExponent);
  }

  TextView text_;
  std::size_t at_ = 0;
  std::string number_;
};

}  // namespace

Text plain(std::int64_t value) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return Text(digits.data(), end);
}

Text plain(double value) {
  if (!std::isfinite(value) || value == 0) return u"0";
  std::array<char, 40> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::general, significantDigits)
                       .ptr;
  Text digits(buffer.data(), end);
  for (char16_t& character : digits)
    if (character == u'e') character = u'E';
  // A fraction below one is written without its zero.
  const std::size_t first = digits.starts_with(u'-') ? 1 : 0;
  if (digits.compare(first, 2, u"0.") == 0) digits.erase(first, 1);
  return digits;
}

Text number(std::int64_t value) {
  return withSignPlace(plain(value));
}

Text number(double value) {
  return withSignPlace(plain(value));
}

double value(TextView text) {
  const std::string digits = NumberScan(text).run();
  if (digits.empty()) return 0;
  double result = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
  if (error != std::errc::result_out_of_range) return result;
  if (digits.find("e-") != std::string::npos) return 0;
  constexpr double largest = std::numeric_limits<double>::max();
  return digits.front() == '-' ? -largest : largest;
}

int intValue(TextView text) {
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(roundHalfEven(value(text)), lowest, highest));
}

double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

double roundHalfEven(double value, int places) {
  const double scale = std::pow(10.0, places);
  return roundHalfEven(value * scale) / scale;
}

Text sizeText(double bytes) {
  const double kilobytes = bytes / 1024;
  const double megabytes = kilobytes / 1024;
  if (kilobytes < 1024) return number(roundHalfEven(kilobytes, 2)) + u" KB";
  if (megabytes < 1024) return number(roundHalfEven(megabytes, 2)) + u" MB";
  return number(roundHalfEven(megabytes / 1024, 2)) + u" GB";
}

}  // namespace velmora::core
