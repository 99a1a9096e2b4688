#pragma once

#include "tags/field_values.h"
#include "ui/form1.h"

namespace velmora::tags {

/// Calls `visit(box, check, field)` for the six tag boxes of the panel, always in the same order: the box,
/// the check box beside it, and the member of FieldValues that stands for it.
template <typename Visit>
void forEachField(ui::Form1& form1, Visit visit) {
  visit(form1.tags.title, form1.fieldChecks.title, &FieldValues::title);
  visit(form1.tags.artist, form1.fieldChecks.artist, &FieldValues::artist);
  visit(form1.tags.album, form1.fieldChecks.album, &FieldValues::album);
  visit(form1.tags.year, form1.fieldChecks.year, &FieldValues::year);
  visit(form1.tags.track, form1.fieldChecks.track, &FieldValues::track);
  visit(form1.tags.genre, form1.fieldChecks.genre, &FieldValues::genre);
}

}  // namespace velmora::tags
