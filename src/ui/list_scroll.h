#pragma once

#include "ui/list_box.h"

namespace velmora::ui {

/// Scrolls a list so that the row at `index` stands in the middle of the rows in sight, or as near to it as
/// the list's ends allow.
void ListShowRow(ListBox& list, int index);
/// Puts a remembered TopIndex back, at most the last row.
void ListRestoreTop(ListBox& list, int topIndex);

}  // namespace velmora::ui
