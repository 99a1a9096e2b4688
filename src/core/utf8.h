#pragma once

#include "platform/text.h"

/// The one conversion between texts and the machine's bytes, in the form that adds to a buffer, for files of
/// many texts. Single texts go through fromBytes and toBytes of core/text.h.
namespace velmora::core::utf8 {

/// Adds the text of UTF-8 `bytes`. A byte that belongs to no valid sequence becomes U+DC00 plus its value;
/// that holds for encoded surrogates and overlong forms as well.
void append(Text& out, BytesView bytes);
/// Adds the UTF-8 of `text`, U+DC80 to U+DCFF as the bytes that they stand for. Any other surrogate without
/// its partner, which no conversion makes but a cut may, becomes U+FFFD.
void append(Bytes& out, TextView text);

}  // namespace velmora::core::utf8
