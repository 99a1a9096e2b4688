#pragma once

#include "core/track_table.h"
#include "ui/form1.h"

/// The lines of the Artist List view: the artists in List1 and, at the same index, their kinds in List7. A
/// kind is "NEW" (rows in the working list alone), "OLD" (in the Music Base alone) or "N&O" (in both); all
/// but "OLD" are marked as selected in List7.
namespace velmora::rows::artist_lines {

extern const Text newKind;
extern const Text oldKind;
extern const Text bothKind;

/// Index of the line of exactly this artist; -1 without one.
int find(const ui::ListBox& List1, const Text& artist);
/// Puts a new line at its place, of kind "OLD", and returns its index.
int add(ui::Form1& form1, const Text& artist);
void setKind(ui::Form1& form1, int index, const Text& kind);

/// A row gained this artist: its line is added, or its kind follows. Returns the index of the line.
int gained(ui::Form1& form1, const core::TrackTable& table, const Text& artist);
/// A row lost this artist: the kind of its line follows, and the line goes with the last row.
void lost(ui::Form1& form1, const core::TrackTable& table, const Text& artist);

}  // namespace velmora::rows::artist_lines
