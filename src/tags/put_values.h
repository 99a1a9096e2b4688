#pragma once

#include "tags/field_values.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"

namespace velmora::tags {

/// Puts values into a tag that was read from its file, as a user types them: the track as a number, the genre
/// by its name. A genre that the table lacks leaves that of an ID3v1 tag as it is. Returns whether the tag
/// then says something else than its file.
bool putValues(cMP3ID3v1& tag, const FieldValues& values);
bool putValues(cMP3ID3v2& tag, const FieldValues& values);

/// All that a tag says, blanks left out: what a new tag beside it begins with.
FieldValues valuesOf(const cMP3ID3v1& tag);
FieldValues valuesOf(const cMP3ID3v2& tag);

/// `values`, and those of `others` where it has none.
FieldValues joined(FieldValues values, const FieldValues& others);

}  // namespace velmora::tags
