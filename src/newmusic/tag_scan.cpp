#include "newmusic/tag_scan.h"

#include <cstdint>

#include "base/busy.h"
#include "core/number_text.h"

namespace velmora::newmusic {

void TagScan::scan() {
  {
    const base::Busy busy(parts_.windows, parts_.progress, u"Sorting ...");
    parts_.windows.form2.List1.Clear();
    if (parts_.table.brojfajlova() > 0) readAll();
  }
  parts_.lists.IzlistajVrste();
  parts_.summary.moze();
}

void TagScan::readAll() {
  core::TrackTable& table = parts_.table;
  ui::Label& status = parts_.windows.form2.statusLabel;
  const int shown = table.currentRow;
  for (int row = 1; row <= table.workingRows(); ++row) {
    parts_.progress.pump();
    parts_.progress.UpdateProgress(100.0 * row / table.brojfajlova());
    status.setText(core::plain(std::int64_t{table.brojfajlova() - row}) + u" files left.");
    if (table.Stop) break;
    parts_.panel.readTags(table.path(row), row);
  }
  status.setText({});
  table.currentRow = shown;
  if (table.hasRow(shown)) parts_.panel.info(table.path(shown), shown);
  parts_.data.SaveID3nizove(table);
}

void readUnreadRows(core::TrackTable& table, tags::FilePanel& panel, ui::Progress& progress) {
  const int shown = table.currentRow;
  for (int row = 1; row <= table.workingRows() && !table.Stop; ++row) {
    if (table.track(row).procitan.isTrue()) continue;
    panel.readTags(table.path(row), row);
    progress.UpdateProgress(100.0 * row / table.brojfajlova());
  }
  table.currentRow = shown;
}

}  // namespace velmora::newmusic
