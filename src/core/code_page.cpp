#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace velmora::core {

namespace {

// Characters of the bytes 80 to 9F; all others are those of the same code in Unicode.
constexpr std::size_t firstByte = 0x80;
constexpr std::array<char16_t, 32> special = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char missing = '?';

char toByte(char16_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::ranges::find(special, character);
  if (found == special.end()) return missing;
  return static_cast<char>(firstByte + static_cast<std::size_t>(found - special.begin()));
}

bool startsPair(TextView text, std::size_t at) {
  return (text[at] & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
}

}  // namespace

Bytes toCodePage(TextView text) {
  Bytes out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (startsPair(text, at)) ++at;  // one character, and so one mark
    out += toByte(text[at]);
  }
  return out;
}

Text fromCodePage(BytesView bytes) {
  Text out;
  out.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<std::uint8_t>(byte);
    out += code >= firstByte && code < firstByte + special.size() ? special[code - firstByte]
                                                                  : static_cast<char16_t>(code);
  }
  return out;
}

}  // namespace velmora::core
