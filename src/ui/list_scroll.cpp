#include "ui/list_scroll.h"

#include <algorithm>

namespace velmora::ui {

void ListShowRow(ListBox& list, int index) {
  if (list.ListCount() == 0) return;
  list.setTopIndex(std::clamp(index - list.visibleRows() / 2, 0, list.ListCount() - 1));
}

void ListRestoreTop(ListBox& list, int topIndex) {
  list.setTopIndex(std::min(topIndex, list.ListCount() - 1));
}

}  // namespace velmora::ui
