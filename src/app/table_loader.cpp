#include "app/table_loader.h"

#include <cmath>
#include <utility>
#include <vector>

#include "app/guarded.h"
#include "core/number_text.h"
#include "names/grammar.h"
#include "ui/display_limit.h"

namespace velmora::app {

void TableLoader::load() {
  guarded([&] { readColumns(); });
  guarded([&] { showList(); });
  guarded([&] { showCounts(); });
}

void TableLoader::readColumns() {
  core::TrackTable& table = parts_.table;
  parts_.data.readNames(table);
  if (table.rows() >= 1 || !table.niznomusic.empty()) parts_.form1.ostali.setEnabled(true);
  for (int row = 1; row <= table.rows(); ++row) names::PevacIPesma(table, row);
  parts_.data.readTags(table);
  if (parts_.data.namesTrue()) return;
  for (int row = 1; row <= table.rows(); ++row) parts_.dashes.find(row);
  parts_.artists.collect({});
}

void TableLoader::showList() {
  const core::TrackTable& table = parts_.table;
  const int rows = ui::shownRows(table.workingRows());
  std::vector<Text> paths;
  paths.reserve(static_cast<std::size_t>(rows));
  for (int row = 1; row <= rows; ++row) paths.push_back(table.path(row));
  parts_.form1.List4.fill(std::move(paths));
  parts_.form1.listTitle.setText(u"M U S I C    F I L E S");
}

void TableLoader::showCounts() {
  core::TrackTable& table = parts_.table;
  parts_.form1.countLabel.setText(core::number(std::int64_t{table.brojfajlova()}) + u"  new songs ");
  const double bytes = core::value(parts_.settings.get(u"velicinasfiles"));
  table.velicinasfiles = std::isfinite(bytes) ? std::abs(bytes) : 0;
  parts_.form1.sizeLabel.setText(core::sizeText(table.velicinasfiles));
}

}  // namespace velmora::app
