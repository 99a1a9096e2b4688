#pragma once

#include "core/track_table.h"
#include "platform/text.h"

/// The grammar of names: "Artist - Title", and the position of the dash that separates the two.
namespace velmora::names {

/// Bare name of a row: behind the last separator of its path, less the last 4 characters. Empty on a bad row.
Text ImeFajla(const core::TrackTable& table, int row);
/// Derives the artist and title parts of a row from its dash position. Neither is trimmed.
void PevacIPesma(core::TrackTable& table, int row);
/// Stores a dash position in a row and derives the parts from it.
void setDash(core::TrackTable& table, int row, int dash);
/// Comparison key of a name: its letters A to Z in capitals, or the text itself when fewer than 3 remain.
Text SamoSlova(TextView text);
/// The text with each character that a file name cannot hold replaced by a blank.
Text OcistiIme(TextView text);
/// 1-based position from which the dash is looked for: the end of `artist` where the name begins with it, so
/// that a dash inside the artist's own name is passed over; else 1.
int dashStart(TextView bareName, TextView artist);
/// Dash position for the new name of a row that was renamed, 0 when there is none: the first dash at or
/// behind the end of `oldArtist` where the name still begins with it.
int dashAfterRename(TextView bareName, TextView oldArtist);

struct RemovedNumber {
  Text digits;  ///< empty when nothing was removed
  Text name;    ///< what is left of the name, before any syntax fix
};
/// Takes the first run of exactly `digits` digits out of a bare name. With 2 digits the word "Track" in front
/// of a number goes too. The caller puts the name in its box and has its syntax fixed.
RemovedNumber SkiniBroj(TextView bareName, int digits);

}  // namespace velmora::names
