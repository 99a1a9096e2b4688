#include "list/other_rows.h"

#include <cstddef>
#include <cstdint>

#include "core/number_text.h"
#include "list/file_sizes.h"
#include "ui/display_limit.h"

namespace velmora::list {

std::vector<Text> shownOtherFiles(const core::TrackTable& table) {
  const auto& all = table.niznomusic;
  return {all.begin(), all.begin() + ui::shownRows(static_cast<int>(all.size()))};
}

void listOtherFiles(const core::TrackTable& table, platform::Files& files, ui::Progress& progress,
                    ui::Form1& form1) {
  std::vector<Text> paths = shownOtherFiles(table);
  double bytes = 0;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    bytes += bytesOf(files, paths[i]);
    progress.UpdateProgress(100.0 * static_cast<double>(i + 1) / static_cast<double>(paths.size()));
  }
  form1.countLabel.setText(core::number(static_cast<std::int64_t>(paths.size())) + u"  files ");
  form1.sizeLabel.setText(core::sizeText(bytes));
  form1.List4.fill(std::move(paths));
}

}  // namespace velmora::list
