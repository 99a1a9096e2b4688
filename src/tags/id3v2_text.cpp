#include "tags/id3v2_text.h"

#include <algorithm>

#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text.h"
#include "core/utf8.h"
#include "tags/genre.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

namespace {

enum Encoding : char { Latin1 = 0, Utf16 = 1, Utf16BigEndian = 2, Utf8 = 3 };

constexpr char16_t mark = 0xFEFF;
constexpr std::size_t languageBytes = 3;

enum class Kind { Text, Described, Link, DescribedLink, Language, Counter, Other };

Kind kindOf(BytesView name) {
  if (name == "COMM" || name == "USLT") return Kind::Language;
  if (name == "TXXX") return Kind::Described;
  if (name == "WXXX") return Kind::DescribedLink;
  if (name == "PCNT") return Kind::Counter;
  if (name.starts_with('T')) return Kind::Text;
  return name.starts_with('W') ? Kind::Link : Kind::Other;
}

bool surrogate(char16_t unit) {
  return (unit & 0xF800) == 0xD800;
}

bool startsPair(TextView text, std::size_t at) {
  return (text[at] & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
}

bool hasStrayBytes(TextView text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (startsPair(text, i))
      ++i;
    else if (surrogate(text[i]))
      return true;
  }
  return false;
}

/// Puts U+FFFD in the place of what is half a character.
void replaceHalves(Text& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (startsPair(text, i))
      ++i;
    else if (surrogate(text[i]))
      text[i] = 0xFFFD;
  }
}

/// Text without a mark is in the order in which more of its characters are Latin ones.
bool looksBigEndian(BytesView bytes) {
  std::size_t highFirst = 0;
  std::size_t lowFirst = 0;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    if (bytes[i] == 0 && bytes[i + 1] != 0) ++highFirst;
    if (bytes[i] != 0 && bytes[i + 1] == 0) ++lowFirst;
  }
  return highFirst > lowFirst;
}

Text fromUtf16(BytesView bytes, bool bigEndianOrder) {
  Text out;
  out.reserve(bytes.size() / 2);
  bool starts = true;  // of a text, where its mark stands
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    const auto unit = static_cast<char16_t>(bigEndianOrder ? first << 8 | second : second << 8 | first);
    if (starts && unit == 0xFFFE)
      bigEndianOrder = !bigEndianOrder;
    else if (!starts || unit != mark)
      out += unit;
    starts = unit == 0;
  }
  replaceHalves(out);
  return out;
}

Text decoded(char encoding, BytesView bytes) {
  switch (encoding) {
    case Utf16:
      return fromUtf16(bytes, looksBigEndian(bytes));
    case Utf16BigEndian:
      return fromUtf16(bytes, true);
    case Utf8: {
      if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
      Text text = core::fromBytes(bytes);
      // Bytes that are no UTF-8 came from a program that marked its code page so.
      return hasStrayBytes(text) ? core::fromCodePage(bytes) : text;
    }
    default:
      return core::fromCodePage(bytes);
  }
}

bool fitsLatin1(TextView text) {
  return std::ranges::all_of(text,
                             [](char16_t unit) { return unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF); });
}

char narrowest(TextView text, std::uint8_t version) {
  if (fitsLatin1(text)) return Latin1;
  return version >= 4 ? Utf8 : Utf16;
}

Bytes encoded(char encoding, TextView text, bool withMark = true) {
  if (encoding == Latin1) return core::toCodePage(text);
  if (encoding == Utf8) return core::toBytes(text);
  Bytes bytes = withMark ? "\xFF\xFE" : "";
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

Bytes terminator(char encoding) {
  return Bytes(encoding == Utf16 ? 2 : 1, '\0');
}

/// The body without what its flags put in front; nothing where it is compressed or encrypted.
std::optional<BytesView> contentOf(std::uint8_t version, std::uint16_t flags, BytesView body) {
  const bool v4 = version == 4;
  if ((flags & (v4 ? 0x000C : 0x00C0)) != 0) return {};
  std::size_t skipped = 0;
  if ((flags & (v4 ? 0x0040 : 0x0020)) != 0) skipped += 1;
  if (v4 && (flags & 0x0001) != 0) skipped += 4;
  return body.size() < skipped ? BytesView() : body.substr(skipped);
}

Text counterText(BytesView body) {
  BytesView digits = body;
  if (digits.starts_with('\0')) digits.remove_prefix(1);
  // Earlier versions of this program wrote the number as a text.
  if (!digits.empty() && std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; }))
    return core::fromCodePage(digits);
  if (body.empty() || body.size() > 8) return {};
  std::uint64_t count = 0;
  for (const char byte : body) count = count << 8 | static_cast<unsigned char>(byte);
  return core::plain(static_cast<std::int64_t>(count & 0x7FFF'FFFF'FFFF'FFFF));
}

Text withoutZeros(TextView text) {
  Text out(text);
  std::erase(out, u'\0');
  return out;
}

/// The values of a text one behind the other, on one line.
Text onOneLine(TextView text) {
  Text out;
  out.reserve(text.size());
  bool between = false;  // values
  bool blank = false;    // a line ended
  for (const char16_t unit : text) {
    if (unit == 0) between = !out.empty();
    if (unit == u'\t' || unit == u'\n' || unit == u'\r') blank = !out.empty();
    if (unit < 32 || unit == 127) continue;
    if (between)
      out += betweenValues;
    else if (blank)
      out += u' ';
    between = blank = false;
    out += unit;
  }
  return out;
}

/// A whole number of 0 to 255 with nothing but blanks around it.
std::optional<std::uint8_t> byteNumber(TextView text) {
  text = core::trim(text);
  if (text.empty()) return {};
  unsigned number = 0;
  for (const char16_t character : text) {
    if (character < u'0' || character > u'9') return {};
    number = number * 10 + (character - u'0');
    if (number > 255) return {};
  }
  return static_cast<std::uint8_t>(number);
}

}  // namespace

Text frameText(BytesView name, std::uint8_t version, std::uint16_t flags, BytesView body) {
  const auto content = contentOf(version, flags, body);
  if (!content || content->empty()) return {};
  const char encoding = content->front();
  const bool known = encoding >= Latin1 && encoding <= Utf8;
  const BytesView behind = known ? content->substr(1) : *content;
  switch (kindOf(name)) {
    case Kind::Text: {
      Text text = decoded(known ? encoding : char{Latin1}, behind);
      text.erase(text.find_last_not_of(u'\0') + 1);
      return text;
    }
    case Kind::Described:
    case Kind::DescribedLink:
      return decoded(known ? encoding : char{Latin1}, behind);
    case Kind::Language:
      return core::fromCodePage(behind.substr(0, languageBytes)) +
             (behind.size() > languageBytes ? decoded(encoding, behind.substr(languageBytes)) : Text());
    case Kind::Counter:
      return counterText(*content);
    default:
      return core::fromCodePage(*content);
  }
}

Bytes frameBody(BytesView name, std::uint8_t version, TextView text) {
  const Kind kind = kindOf(name);
  if (kind == Kind::Link) return core::toCodePage(text);
  if (kind == Kind::Counter) {
    const auto count = static_cast<std::uint32_t>(std::clamp(core::value(text), 0.0, 4294967295.0));
    Bytes bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(count >> shift & 0xFF);
    return bytes;
  }
  if (kind == Kind::Other) return Bytes(1, '\0') + core::toCodePage(text);
  const char encoding = narrowest(text, version);
  Bytes body(1, encoding);
  if (kind == Kind::Text)
    return body + encoded(encoding, core::replaceAll(text, betweenValues, TextView(u"\0", 1)));
  if (kind == Kind::Language) {
    Bytes language = core::toCodePage(text.substr(0, languageBytes));
    language.resize(languageBytes, '\0');
    body += language;
    text = text.substr(std::min(languageBytes, text.size()));
  }
  const auto split = text.find(u'\0');
  const TextView description = text.substr(0, split);
  const TextView rest = split == TextView::npos ? TextView() : text.substr(split + 1);
  body += encoded(encoding, description) + terminator(encoding);
  return body + (kind == Kind::DescribedLink ? core::toCodePage(rest) : encoded(encoding, rest));
}

Text shownText(BytesView name, TextView text) {
  switch (kindOf(name)) {
    case Kind::Language:
      return withoutZeros(text);
    case Kind::DescribedLink:
      return withoutZeros(text.substr(text.rfind(u'\0') + 1));
    default:
      break;
  }
  Text shown = onOneLine(text);
  if (name == "TDRC" && shown.find(u'-') == 4) shown.resize(4);
  return shown;
}

bool givesYear(BytesView name, std::uint8_t version, TextView shown) {
  if (name == "TDRC") return version == 4 || shown.empty();
  return name == "TYER" && (version != 4 || shown.empty());
}

GenreText parseGenre(TextView shown, std::uint8_t version) {
  if (const auto between = shown.find(betweenValues); between != TextView::npos) {
    GenreText first = parseGenre(shown.substr(0, between), version);
    const GenreText others = parseGenre(shown.substr(between + betweenValues.size()), version);
    if (!first.name.empty() && !others.name.empty()) first.name += betweenValues;
    first.name += others.name;
    return first;
  }
  if (version == 4)
    if (const auto code = byteNumber(shown); code && !GenreName(*code).empty())
      return {code, GenreName(*code)};
  const auto open = shown.find(u'(');
  const auto close = shown.find(u')');
  if (open == TextView::npos || close == TextView::npos || close < open) return {{}, Text(shown)};
  const auto code = byteNumber(shown.substr(open + 1, close - open - 1));
  if (!code) return {{}, Text(shown)};
  // A single character behind the parenthesis counts as no text.
  if (shown.size() <= close + 2) return {code, GenreName(*code)};
  return {code, Text(shown.substr(close + 1))};
}

}  // namespace velmora::tags
