#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

/// What stands in the body of an ID3v2 frame, as text, and how a text becomes a body.
namespace velmora::tags {

/// Stands in texts between several values of one frame, which a tag keeps apart by a character 0: a semicolon
/// and a blank that nobody types by chance, so that the values are told apart again on writing.
inline constexpr TextView betweenValues = u";\u00A0";

/// Text of a body, by its encoding byte where the frame has one: Latin-1 (read as Windows-1252), UTF-16 with
/// or without its mark, UTF-8. A comment or lyrics: language, description, a character 0 and the text. Empty
/// for a frame that is compressed or encrypted. `flags` are those of `version`.
Text frameText(BytesView name, std::uint8_t version, std::uint16_t flags, BytesView body);

/// A body with this text, in the form of `frameText`, in the narrowest encoding that reads back the same and
/// that `version` has: Latin-1, else UTF-16 with its mark, from version 4 on UTF-8.
Bytes frameBody(BytesView name, std::uint8_t version, TextView text);

/// What a field shows of a frame's text: several values with `betweenValues` between them, no control
/// characters; of a comment all three parts without anything between them, of a link the address alone, of
/// a time ("TDRC") the year.
Text shownText(BytesView name, TextView text);

/// Whether the year is to be taken from this frame, where `shown` is that of an earlier one: "TDRC" comes
/// before "TYER" in version 4, and behind it in others.
bool givesYear(BytesView name, std::uint8_t version, TextView shown);

/// What the shown text of TCON says: "(17)" is code 17 and its name, "(17)Rock and Roll" the code and that
/// name, "Rock" a name alone. In version 4 "17" is a code, too.
struct GenreText {
  std::optional<std::uint8_t> code;
  Text name;
};
GenreText parseGenre(TextView shown, std::uint8_t version = 3);

}  // namespace velmora::tags
