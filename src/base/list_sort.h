#pragma once

#include <cstddef>
#include <vector>

#include "ui/list_box.h"

namespace velmora::base {

/// Sorts rows from `first` on as a sorted list does: without regard to case, rows of equal names in the order
/// they had.
void sortByName(std::vector<ui::ListItem>& rows, std::size_t first = 0);
/// Sorts rows from `first` on by the year that they end in, the oldest first, rows of one year in the order
/// they had.
void sortByYear(std::vector<ui::ListItem>& rows, std::size_t first);

}  // namespace velmora::base
