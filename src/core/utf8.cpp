#include "core/utf8.h"

#include <cstdint>
#include <cstring>

namespace velmora::core::utf8 {

namespace {

/// Length of the valid sequence at the start of `bytes`, 2 to 4, or 0 where there is none. Which second bytes
/// are valid depends on the first (table 3-7 of the Unicode standard); that leaves out overlong forms,
/// surrogates and what lies beyond U+10FFFF.
std::size_t sequenceLength(const unsigned char* bytes, std::size_t left) {
  const unsigned char lead = bytes[0];
  std::size_t length = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  }
  if (length == 0 || left < length || bytes[1] < low || bytes[1] > high) return 0;
  for (std::size_t i = 2; i < length; ++i)
    if ((bytes[i] & 0xC0) != 0x80) return 0;
  return length;
}

/// Writes the units of one non-ASCII character or of one escaped byte; returns how many bytes were used.
std::size_t decodeOne(char16_t*& to, const unsigned char* bytes, std::size_t left) {
  const std::size_t length = sequenceLength(bytes, left);
  if (length == 0) {
    *to++ = static_cast<char16_t>(0xDC00 + bytes[0]);
    return 1;
  }
  std::uint32_t character = bytes[0] & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) character = character << 6 | (bytes[i] & 0x3FU);
  if (character < 0x10000) {
    *to++ = static_cast<char16_t>(character);
  } else {
    *to++ = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    *to++ = static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
  }
  return length;
}

bool isHigh(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

bool isLow(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

void put(Bytes& out, std::uint32_t character) {
  const auto tail = [&](int shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x800) {
    const char bytes[] = {static_cast<char>(0xC0 | character >> 6), tail(0)};
    out.append(bytes, sizeof bytes);
  } else if (character < 0x10000) {
    const char bytes[] = {static_cast<char>(0xE0 | character >> 12), tail(6), tail(0)};
    out.append(bytes, sizeof bytes);
  } else {
    const char bytes[] = {static_cast<char>(0xF0 | character >> 18), tail(12), tail(6), tail(0)};
    out.append(bytes, sizeof bytes);
  }
}

/// Encodes the character at `at`, which is not ASCII; returns how many units were used.
std::size_t encodeOne(Bytes& out, TextView text, std::size_t at) {
  const char16_t unit = text[at];
  if (isHigh(unit) && at + 1 < text.size() && isLow(text[at + 1])) {
    put(out, 0x10000 + ((unit - 0xD800U) << 10) + (text[at + 1] - 0xDC00U));
    return 2;
  }
  if (unit >= 0xDC80 && unit <= 0xDCFF) {
    out.push_back(static_cast<char>(unit - 0xDC00));
  } else {
    put(out, isHigh(unit) || isLow(unit) ? 0xFFFDU : unit);
  }
  return 1;
}

}  // namespace

void append(Text& out, BytesView bytes) {
  const std::size_t before = out.size();
  out.resize(before + bytes.size());  // no character has more units than bytes
  const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
  char16_t* to = out.data() + before;
  std::size_t at = 0;
  for (constexpr std::size_t block = 8; at + block <= bytes.size(); at += block, to += block) {
    unsigned all = 0;
    for (std::size_t i = 0; i < block; ++i) {
      all |= from[at + i];
      to[i] = from[at + i];
    }
    if (all >= 0x80) break;
  }
  while (at < bytes.size()) {
    if (from[at] < 0x80) {
      *to++ = from[at++];
    } else {
      at += decodeOne(to, from + at, bytes.size() - at);
    }
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

void append(Bytes& out, TextView text) {
  // ASCII, the common case, is written in one go, blocks of it without a branch per character.
  const std::size_t before = out.size();
  out.resize(before + text.size());
  char* to = out.data() + before;
  std::size_t at = 0;
  constexpr std::size_t block = 16;
  for (; at + block <= text.size(); at += block) {
    unsigned all = 0;
    for (std::size_t i = 0; i < block; ++i) {
      all |= text[at + i];
      to[at + i] = static_cast<char>(text[at + i]);
    }
    if (all >= 0x80) break;
  }
  for (; at < text.size() && text[at] < 0x80; ++at) to[at] = static_cast<char>(text[at]);
  if (at == text.size()) return;

  out.resize(before + at);
  while (at < text.size()) {
    if (text[at] < 0x80) {
      out += static_cast<char>(text[at++]);
    } else {
      at += encodeOne(out, text, at);
    }
  }
}

}  // namespace velmora::core::utf8
