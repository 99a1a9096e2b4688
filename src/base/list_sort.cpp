#include "base/list_sort.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "base/base_tree.h"
#include "core/text.h"

namespace velmora::base {

namespace {

/// The key is made once per row, since it costs more than a comparison.
template <typename KeyOf>
void sortBy(std::vector<ui::ListItem>& rows, std::size_t first, const KeyOf& keyOf) {
  using Key = std::invoke_result_t<KeyOf, const Text&>;
  std::vector<std::pair<Key, std::size_t>> order;
  order.reserve(rows.size() - first);
  for (std::size_t row = first; row < rows.size(); ++row) order.emplace_back(keyOf(rows[row].text), row);
  if (std::ranges::is_sorted(order)) return;
  std::ranges::sort(order);  // the place decides between equal keys
  std::vector<ui::ListItem> sorted;
  sorted.reserve(order.size());
  for (const auto& entry : order) sorted.push_back(std::move(rows[entry.second]));
  std::ranges::move(sorted, rows.begin() + static_cast<std::ptrdiff_t>(first));
}

}  // namespace

void sortByName(std::vector<ui::ListItem>& rows, std::size_t first) {
  sortBy(rows, first, [](const Text& name) { return core::upper(name); });
}

void sortByYear(std::vector<ui::ListItem>& rows, std::size_t first) {
  sortBy(rows, first, FolderYear);
}

}  // namespace velmora::base
