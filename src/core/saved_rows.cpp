#include "core/saved_rows.h"

#include <cstddef>
#include <unordered_map>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"

namespace velmora::core {

std::optional<int> storedCount(TextView text) {
  const TextView digits = trim(text);
  if (digits.empty() || digits.find_first_not_of(u"0123456789") != TextView::npos) return std::nullopt;
  return intValue(digits);
}

/// From the end up: the rows stand in the order of `bazaniz`, so that the first of that ends the search, and
/// a row that the user has added from within the base is not taken for one of the base.
int baseRowsAtEnd(const TrackTable& table, TextView baseFolder) {
  std::unordered_map<TextView, std::size_t> places;
  places.reserve(table.bazaniz.size());
  for (std::size_t i = 0; i < table.bazaniz.size(); ++i) places.emplace(table.bazaniz[i], i);
  std::size_t place = table.bazaniz.size();
  int row = table.rows();
  for (; row > 0; --row) {
    if (place == 0 && !places.empty()) break;
    const auto found = places.find(table.path(row));
    if (found != places.end() && found->second < place)
      place = found->second;
    else if (baseFolder.empty() || !paths::within(table.path(row), baseFolder))
      break;
  }
  return table.rows() - row;
}

}  // namespace velmora::core
