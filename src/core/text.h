#pragma once

#include "platform/text.h"

namespace velmora::core {

/// Text of UTF-8 bytes. A byte that is no valid UTF-8 becomes U+DC80 to U+DCFF, so that toBytes gives back
/// exactly the same bytes.
Text fromBytes(BytesView bytes);
/// UTF-8 bytes of a text, with U+DC80 to U+DCFF turned back into the bytes they stand for.
Bytes toBytes(TextView text);
/// The form in which a name comes back from the disk: bytes that were none of UTF-8 may have come to stand
/// together as a letter. For every name that is put together from parts, before it goes anywhere.
Text canonical(Text name);
/// Text of a literal that holds ASCII alone.
Text ascii(std::string_view literal);

/// One-to-one mappings of single characters over all of Unicode, the same whatever the locale: a text keeps
/// its length, and "ß" stays "ß".
Text upper(TextView text);
Text lower(TextView text);
char16_t upper(char16_t character);

/// Without blanks (U+0020 alone) at both ends; at the left end; at the right end.
TextView trim(TextView text);
TextView trimLeft(TextView text);
TextView trimRight(TextView text);

/// `text` with every occurrence of `what` replaced, scanning left to right without overlap.
/// An empty `what` replaces nothing.
Text replaceAll(TextView text, TextView what, TextView with);

bool equalNoCase(TextView left, TextView right);
bool startsWithNoCase(TextView text, TextView start);

/// The first `count` characters, or all where the text is shorter; a count below 0 counts as 0.
TextView left(TextView text, int count);
/// The last `count` characters, or all where the text is shorter; a count below 0 counts as 0.
TextView right(TextView text, int count);
/// The text less its last `count` characters; empty where it is shorter.
TextView dropRight(TextView text, int count);

/// Lengths and positions are plain ints throughout; this is the one place that narrows.
inline int length(TextView text) {
  return static_cast<int>(text.size());
}
/// 1-based position of the first `what` at or behind the 1-based `start`; 0 when there is none.
int position(TextView text, TextView what, int start = 1);

}  // namespace velmora::core
