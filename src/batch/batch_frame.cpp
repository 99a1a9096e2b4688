#include "batch/batch_frame.h"

#include "core/text.h"
#include "journal/undo_group.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "rows/listed_size.h"
#include "ui/view_choice.h"

namespace velmora::batch {

std::vector<int> BatchFrame::selectedRows() const {
  std::vector<int> rows;
  if (ui::viewOf(parts_.form1) == ui::View::Other) return rows;
  for (const int index : parts_.form1.List4.selectedIndexes())
    if (index < parts_.table.workingRows()) rows.push_back(index + 1);
  return rows;
}

std::vector<int> BatchFrame::selectedSongs() const {
  std::vector<int> rows;
  for (const int index : parts_.form1.List2.selectedIndexes())
    if (parts_.table.hasRow(parts_.form1.List2.ItemData(index)))
      rows.push_back(parts_.form1.List2.ItemData(index));
  return rows;
}

void BatchFrame::run(const Text& caption, const std::vector<int>& rows,
                     const std::function<bool(int row)>& treat) {
  if (rows.empty()) return;
  const Text title(core::trim(TextView(caption).substr(0, caption.find(u'.'))));
  parts_.failures.during({title, u"file was not changed", u"files were not changed"}, rows.size(),
                         [&] { runGroup(caption, rows, treat); });
}

void BatchFrame::runGroup(const Text& caption, const std::vector<int>& rows,
                          const std::function<bool(int row)>& treat) {
  parts_.closing.run([&] {
    parts_.progress.show(caption);
    auto group = journal::openUndoGroup(parts_.journal, parts_.form1);
    parts_.data.beginChange();
    try {
      const rows::ArtistBook::Batch artists(parts_.artists);
      walk(rows, treat);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // The walk ends here, and what was done before stays done.
    }
    group.end();
    parts_.data.savenizove(parts_.table);
    parts_.data.SaveID3nizove(parts_.table);
    const int row = parts_.table.currentRow;
    if (!parts_.table.hasRow(row)) return;
    parts_.panel.info(parts_.table.path(row), row);
    parts_.panel.showName(row);
    parts_.form1.List4.takeFocus();
  });
}

void BatchFrame::walk(const std::vector<int>& rows, const std::function<bool(int row)>& treat) {
  int counter = 0;
  for (const int row : rows) {
    ++counter;
    parts_.progress.UpdateProgress(100.0 * counter / static_cast<double>(rows.size()));
    const rows::ListedSize size(parts_.table, parts_.files, row);
    if (parts_.table.Stop || !treat(row)) return;
  }
}

}  // namespace velmora::batch
