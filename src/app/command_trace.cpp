#include "app/command_trace.h"

#include <vector>

#include "app/house.h"
#include "platform/trace.h"

namespace velmora::app {

namespace {

/// The selected rows of the file list as ranges, such as "4-6,9"; "none" without any.
std::string selectedRows(const ui::ListBox& list) {
  const std::vector<int> indexes = list.selectedIndexes();
  std::string rows;
  for (std::size_t first = 0; first < indexes.size();) {
    std::size_t last = first;
    while (last + 1 < indexes.size() && indexes[last + 1] == indexes[last] + 1) ++last;
    if (!rows.empty()) rows += ',';
    rows += std::to_string(indexes[first] + 1);
    if (last > first) rows += '-' + std::to_string(indexes[last] + 1);
    first = last + 1;
  }
  return rows.empty() ? "none" : rows;
}

}  // namespace

void runTraced(House& house, std::string_view name, const std::function<void()>& command) {
  platform::Trace* trace = platform::currentTrace();
  if (!trace) return command();
  const std::string called = "command " + std::string(name) + ": ";
  trace->line(called + "rows " + selectedRows(house.windows.form1.List4) + " of " +
              std::to_string(house.table.brojfajlova()));
  const std::int64_t begin = house.services.desktop.clockMilliseconds();
  command();
  trace->line(called + "done, " + std::to_string(house.services.desktop.clockMilliseconds() - begin) + " ms");
}

}  // namespace velmora::app
