#pragma once

#include <vector>

#include "platform/text.h"
#include "ui/list_box.h"

namespace velmora::base {

/// A field of a window's state: the selected rows, each as a blank and the number, divided by ",", and ":" at
/// the end.
Text selectedField(const ui::ListBox& list);
/// TopIndex as a blank and the number, and ":" at the end.
Text topField(const ui::ListBox& list);
/// Selects these rows with one click, as the user selects them one after the other. Rows that the list does
/// not have are passed over.
void selectRows(ui::ListBox& list, const std::vector<int>& indexes);

}  // namespace velmora::base
