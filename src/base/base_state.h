#pragma once

#include "core/track_table.h"
#include "platform/text.h"
#include "ui/form3.h"

namespace velmora::base {

/// Selected rows and top rows of the four columns of the Music Base Window as one text of eight fields, each
/// ended by ":".
Text StanjeLista(const ui::Form3& form3);

/// Puts back what such a text tells, column by column, so that each column is filled by the selection before
/// it; what is selected already stays so. Run it under `puniliste`; the titles of the selected albums are
/// listed all the same. A row number past the end of its list ends the restoring.
void restoreLists(ui::Form3& form3, core::TrackTable& table, TextView state);

}  // namespace velmora::base
