#include "app/table_loader.h"

#include <cmath>
#include <utility>
#include <vector>

#include "app/guarded.h"
#include "core/number_text.h"
#include "names/grammar.h"

namespace velmora::app {

TableLoader::TableLoader(core::TrackTable& table, const core::Settings& settings, core::DataFolder& data,
                         ui::Form1& form1)
    : table_(table), settings_(settings), data_(data), form1_(form1) {}

void TableLoader::load() {
  guarded([&] { readColumns(); });
  guarded([&] { showList(); });
  guarded([&] { showCounts(); });
}

void TableLoader::readColumns() {
  data_.readNames(table_);
  if (table_.rows() >= 1 || !table_.niznomusic.empty()) form1_.ostali.setEnabled(true);
  for (int row = 1; row <= table_.rows(); ++row) names::PevacIPesma(table_, row);
  data_.readTags(table_);
}

void TableLoader::showList() {
  std::vector<Text> paths;
  paths.reserve(static_cast<std::size_t>(table_.workingRows() > 0 ? table_.workingRows() : 0));
  for (int row = 1; row <= table_.workingRows(); ++row) paths.push_back(table_.path(row));
  form1_.List4.fill(std::move(paths));
  form1_.listTitle.setText(u"M U S I C    F I L E S");
}

void TableLoader::showCounts() {
  form1_.countLabel.setText(core::number(std::int64_t{table_.brojfajlova()}) + u"  new songs ");
  const double bytes = core::value(settings_.get(u"velicinasfiles"));
  table_.velicinasfiles = std::isfinite(bytes) ? std::abs(bytes) : 0;
  form1_.sizeLabel.setText(core::sizeText(table_.velicinasfiles));
}

}  // namespace velmora::app
