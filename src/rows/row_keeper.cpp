#include "rows/row_keeper.h"

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "names/grammar.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/display_limit.h"
#include "ui/view_choice.h"

namespace velmora::rows {

namespace {}  // namespace

void fillTags(core::Track& track, const journal::RowSnapshot& snapshot) {
  track.procitan = snapshot.procitan;
  track.imaid3v1 = snapshot.imaid3v1;
  track.imaid3v2 = snapshot.imaid3v2;
  for (std::size_t i = 0; i < snapshot.tags.size(); ++i)
    track.*journal::snapshotColumns()[i] = snapshot.tags[i];
}

bool RowKeeper::listFollows() const {
  return batches_ == 0 && ui::viewOf(parts_.form1) == ui::View::Music;
}

void RowKeeper::closeBatch() {
  paths_.reset();
  listRows();
}

/// Outside of a batch rows are put back in ascending order, where a row that the table has bears its number.
bool RowKeeper::tableHas(int row, const Text& path) {
  const core::TrackTable& table = parts_.table;
  if (table.path(row) == path) return true;
  if (batches_ == 0) return false;
  if (!paths_) {
    paths_.emplace();
    for (int any = 1; any <= table.workingRows(); ++any) paths_->insert(table.path(any));
  }
  return !paths_->insert(path).second;
}

/// Fills the file list from the rows. The lines that were selected are known by their paths.
void RowKeeper::listRows() {
  if (ui::viewOf(parts_.form1) != ui::View::Music) return;
  ui::ListBox& list = parts_.form1.List4;
  std::unordered_set<Text> selected;
  for (const int index : list.selectedIndexes()) selected.insert(list.List(index));
  const int top = list.TopIndex();
  const int rows = ui::shownRows(parts_.table.workingRows());
  std::vector<Text> paths;
  paths.reserve(static_cast<std::size_t>(rows));
  std::vector<int> stillSelected;
  for (int row = 1; row <= rows; ++row) {
    paths.push_back(parts_.table.path(row));
    if (selected.contains(paths.back())) stillSelected.push_back(row - 1);
  }
  list.fill(std::move(paths));
  if (!stillSelected.empty()) list.select(stillSelected, stillSelected.front());
  list.setTopIndex(top);
}

void RowKeeper::removeRow(int row) {
  core::TrackTable& table = parts_.table;
  if (!table.hasRow(row)) return;
  const bool listed = row <= table.brojfajlova() && listFollows();
  const Text artist = table.track(row).pevac.text();
  if (paths_) paths_->erase(table.path(row));
  table.removeRow(row);
  if (listed) parts_.form1.List4.RemoveItem(row - 1);
  if (table.currentRow == row)
    table.currentRow = 0;
  else if (table.currentRow > row)
    --table.currentRow;
  parts_.artists.IzbaciAutora(artist);
}

bool RowKeeper::restoreRow(int row, const journal::RowSnapshot& snapshot, const Text& path) {
  return insertRow(row, path, row <= snapshot.brojfajlova, [&snapshot](core::Track& track) {
    fillTags(track, snapshot);
    track.crtapos = snapshot.crtapos;
  });
}

bool RowKeeper::addRow(int row, const Text& path) {
  return insertRow(row, path, true, nullptr);
}

/// Without `fill` the dash is looked for in the name.
bool RowKeeper::insertRow(int row, const Text& path, bool working,
                          const std::function<void(core::Track&)>& fill) {
  core::TrackTable& table = parts_.table;
  if (!parts_.files.fileExists(path)) return false;
  // After a crash the table may be older than the journal, and then it never lost the row.
  if (tableHas(row, path)) return true;
  row = std::clamp(row, 1, (working ? table.workingRows() : table.rows()) + 1);
  table.insertRow(row);
  if (working) table.setBrojfajlova(table.workingRows() + 1);
  core::Track& track = table.track(row);
  track.nizdes = path;
  if (fill)
    fill(track);
  else
    track.crtapos = core::number(std::int64_t{names::dashAfterRename(names::ImeFajla(table, row), {})});
  names::PevacIPesma(table, row);
  if (table.currentRow >= row) ++table.currentRow;
  if (table.vrsta == core::Review::Duplicates && onDuplicateRestored) onDuplicateRestored(row);
  if (working) {
    ui::ListBox& list = parts_.form1.List4;
    if (listFollows() && row - 1 <= list.ListCount()) list.insertItem(row - 1, path);
    try {
      table.velicinasfiles += static_cast<double>(parts_.files.size(path));
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // A file that cannot be measured counts nothing.
    }
  }
  parts_.artists.DodajAutora(track.pevac.text());
  return true;
}

}  // namespace velmora::rows
