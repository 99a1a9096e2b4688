#include "base/base_state.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/state_fields.h"
#include "ui/list_state.h"
#include "ui/quiet_lists.h"

namespace velmora::base {

namespace {

constexpr std::size_t selections = 4;
constexpr std::size_t titleField = 3;

/// Marks further rows and raises one click. False when there is a row that the list has no more; those before
/// it are marked.
bool selectMore(ui::ListBox& list, const std::vector<int>& rows) {
  const auto beyond =
      std::ranges::find_if(rows, [&list](int row) { return row < 0 || row >= list.ListCount(); });
  std::vector<int> marked(rows.begin(), beyond);
  if (!marked.empty()) {
    const int clicked = marked.back();
    for (const int row : list.selectedIndexes()) marked.push_back(row);
    list.select(marked, clicked);
  }
  return beyond == rows.end();
}

/// The titles are not listed under `puniliste`.
void listTitles(ui::Form3& form3, core::TrackTable& table) {
  if (form3.List3.SelCount() == 0 || form3.List8.ListCount() > 0 || !form3.List3.onClick) return;
  const ui::LoudLists loud(table);
  form3.List3.onClick();
}

}  // namespace

Text StanjeLista(const ui::Form3& form3) {
  Text state;
  for (const ui::ListBox* list : {&form3.List1, &form3.List2, &form3.List3, &form3.List4})
    state += selectedField(*list);
  for (const ui::ListBox* list : {&form3.List1, &form3.List2, &form3.List3, &form3.List8})
    state += topField(*list);
  return state;
}

void restoreLists(ui::Form3& form3, core::TrackTable& table, TextView state) {
  const std::array<ui::ListBox*, selections> selected = {&form3.List1, &form3.List2, &form3.List3,
                                                         &form3.List4};
  const std::array<ui::ListBox*, selections> scrolled = {&form3.List1, &form3.List2, &form3.List3,
                                                         &form3.List8};
  const ui::ListState fields = ui::readListState(state, selected.size() + scrolled.size());
  for (std::size_t field = 0; field < selected.size(); ++field) {
    if (field == titleField) listTitles(form3, table);
    if (!selectMore(*selected[field], fields[field])) return;
  }
  for (std::size_t field = 0; field < scrolled.size(); ++field)
    for (const int top : fields[selected.size() + field]) scrolled[field]->setTopIndex(top);
}

}  // namespace velmora::base
