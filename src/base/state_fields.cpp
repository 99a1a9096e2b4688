#include "base/state_fields.h"

#include <cstdint>

#include "core/number_text.h"

namespace velmora::base {

Text selectedField(const ui::ListBox& list) {
  Text field;
  for (const int index : list.selectedIndexes()) field.append(core::number(std::int64_t{index})) += u',';
  if (!field.empty()) field.pop_back();
  return field += u':';
}

Text topField(const ui::ListBox& list) {
  return core::number(std::int64_t{list.TopIndex()}) + u':';
}

void selectRows(ui::ListBox& list, const std::vector<int>& indexes) {
  std::vector<int> present;
  for (const int index : indexes)
    if (index >= 0 && index < list.ListCount()) present.push_back(index);
  if (!present.empty()) list.select(present, present.back());
}

}  // namespace velmora::base
