#include "core/text.h"

#include <algorithm>
#include <cstring>

#include "core/case_mapping.h"
#include "core/utf8.h"

namespace velmora::core {

namespace {

constexpr bool isHigh(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

constexpr bool isLow(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

constexpr char32_t join(char16_t high, char16_t low) {
  return 0x10000 + ((static_cast<char32_t>(high) - 0xD800) << 10) + (static_cast<char32_t>(low) - 0xDC00);
}

/// One character of a text and the count of units that it takes; a lone surrogate stands for itself.
struct Decoded {
  char32_t character;
  std::size_t units;
};

Decoded decode(TextView text, std::size_t at) {
  const char16_t unit = text[at];
  if (isHigh(unit) && at + 1 < text.size() && isLow(text[at + 1])) return {join(unit, text[at + 1]), 2};
  return {unit, 1};
}

template <char32_t (*mapping)(char32_t)>
Text mapped(TextView text) {
  Text out(text);
  for (std::size_t at = 0; at < out.size();) {
    const Decoded old = decode(out, at);
    const char32_t changed = mapping(old.character);
    if (old.units == 1) {
      out[at] = static_cast<char16_t>(changed);
    } else {
      out[at] = static_cast<char16_t>(0xD800 + ((changed - 0x10000) >> 10));
      out[at + 1] = static_cast<char16_t>(0xDC00 + ((changed - 0x10000) & 0x3FF));
    }
    at += old.units;
  }
  return out;
}

}  // namespace

Text fromBytes(BytesView bytes) {
  Text out;
  utf8::append(out, bytes);
  return out;
}

Bytes toBytes(TextView text) {
  Bytes out;
  utf8::append(out, text);
  return out;
}

Text canonical(Text name) {
  const auto isSurrogate = [](char16_t unit) { return isHigh(unit) || isLow(unit); };
  return std::ranges::any_of(name, isSurrogate) ? fromBytes(toBytes(name)) : name;
}

Text ascii(std::string_view literal) {
  return Text(literal.begin(), literal.end());
}

Text upper(TextView text) {
  return mapped<upperCharacter>(text);
}

Text lower(TextView text) {
  return mapped<lowerCharacter>(text);
}

char16_t upper(char16_t character) {
  return static_cast<char16_t>(upperCharacter(character));
}

TextView trimLeft(TextView text) {
  const std::size_t first = text.find_first_not_of(u' ');
  return first == TextView::npos ? TextView() : text.substr(first);
}

TextView trimRight(TextView text) {
  return text.substr(0, text.find_last_not_of(u' ') + 1);
}

TextView trim(TextView text) {
  return trimLeft(trimRight(text));
}

Text replaceAll(TextView text, TextView what, TextView with) {
  if (what.empty()) return Text(text);
  Text out;
  out.reserve(text.size());
  std::size_t done = 0;
  for (std::size_t at; (at = text.find(what, done)) != TextView::npos; done = at + what.size())
    out.append(text, done, at - done).append(with);
  return out.append(text, done);
}

bool equalNoCase(TextView left, TextView right) {
  return left.size() == right.size() && startsWithNoCase(left, right);
}

bool startsWithNoCase(TextView text, TextView start) {
  if (text.size() < start.size()) return false;
  text = text.substr(0, start.size());
  for (std::size_t at = 0; at < start.size();) {
    const Decoded mine = decode(text, at);
    const Decoded wanted = decode(start, at);
    if (mine.units != wanted.units) return false;
    if (mine.character != wanted.character &&
        upperCharacter(mine.character) != upperCharacter(wanted.character))
      return false;
    at += mine.units;
  }
  return true;
}

TextView left(TextView text, int count) {
  return text.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

TextView right(TextView text, int count) {
  const auto kept = std::min(text.size(), static_cast<std::size_t>(std::max(count, 0)));
  return text.substr(text.size() - kept);
}

TextView dropRight(TextView text, int count) {
  const auto dropped = std::min(text.size(), static_cast<std::size_t>(std::max(count, 0)));
  return text.substr(0, text.size() - dropped);
}

int position(TextView text, TextView what, int start) {
  if (what.empty()) return 0;
  const std::size_t at = text.find(what, static_cast<std::size_t>(std::max(start, 1) - 1));
  return at == TextView::npos ? 0 : static_cast<int>(at) + 1;
}

}  // namespace velmora::core
