#include "base/list_sort.h"

#include <algorithm>
#include <compare>
#include <numeric>
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
  std::vector<Key> keys;
  keys.reserve(rows.size() - first);
  for (std::size_t row = first; row < rows.size(); ++row) keys.push_back(keyOf(rows[row].text));
  if (std::ranges::is_sorted(keys)) return;
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, [&keys](std::size_t left, std::size_t right) {
    const auto compared = keys[left] <=> keys[right];
    return compared == 0 ? left < right : compared < 0;  // the place decides between equal keys
  });
  std::vector<ui::ListItem> sorted;
  sorted.reserve(order.size());
  for (const std::size_t place : order) sorted.push_back(std::move(rows[first + place]));
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
