#include "list/delete_files.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <optional>
#include <unordered_map>

#include "core/number_text.h"
#include "journal/pending_record.h"
#include "journal/record_kind.h"
#include "journal/undo_group.h"
#include "journal/undo_record.h"
#include "list/other_rows.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/view_choice.h"

namespace velmora::list {

using platform::FileError;

namespace {}  // namespace

void DeleteFiles::deleteFromList(bool withoutAsking) {
  if (parts_.form1.List4.SelCount() == 0) return;
  if (withoutAsking || confirmed(u"Are you sure you want to send selected files(s) to the Recycle Bin?"))
    deleteSelected();
}

void DeleteFiles::deleteByButton() {
  if (ui::viewOf(parts_.form1) == ui::View::Music) return deleteFromList(false);
  if (parts_.form1.List4.SelCount() == 0) return;
  if (confirmed(u"Are you shure you want to send selected files(s) to the Recycle Bin?")) deleteSelected();
}

void DeleteFiles::deleteFromSongs(bool withoutAsking) {
  ui::ListBox& songs = parts_.form1.List2;
  if (songs.SelCount() == 0) return;
  if (!withoutAsking && !confirmed(u"Are you sure you want to send selected files(s) to recycle bin?"))
    return;
  const int line = songs.selectedIndexes().front();
  deleteSongs();
  const int next = std::min(line, songs.ListCount() - 1);
  if (next >= 0) songs.select({next}, next);
}

bool DeleteFiles::confirmed(const Text& question) const {
  return parts_.dialogs.message(question, u"Delete", platform::Buttons::OkCancel, platform::Icon::Question) ==
         platform::Answer::Ok;
}

void DeleteFiles::deleteSelected() {
  if (parts_.form1.List4.SelCount() == 0) return;
  if (ui::viewOf(parts_.form1) == ui::View::Other) return deleteOthers();
  const core::TrackTable& table = parts_.table;
  const bool beyondRows =
      table.vrsta == core::Review::Duplicates && parts_.form1.List4.ListCount() > table.brojfajlova();
  deleteRows(selectedRows(), !beyondRows);
}

void DeleteFiles::deleteSongs() {
  std::vector<int> rows;
  for (const int index : parts_.form1.List2.selectedIndexes())
    rows.push_back(parts_.form1.List2.ItemData(index));
  deleteRows(std::move(rows), true);
  if (onSongsChanged) onSongsChanged();
}

/// A line behind the working list, which only the duplicates view has, is found by its path.
std::vector<int> DeleteFiles::selectedRows() const {
  const core::TrackTable& table = parts_.table;
  std::vector<int> rows;
  std::unordered_map<TextView, int> tail;
  for (const int index : parts_.form1.List4.selectedIndexes()) {
    if (index < table.workingRows()) {
      rows.push_back(index + 1);
      continue;
    }
    if (tail.empty())
      for (int row = table.rows(); row >= 1; --row) tail.insert_or_assign(table.path(row), row);
    if (const auto found = tail.find(parts_.form1.List4.List(index)); found != tail.end())
      rows.push_back(found->second);
  }
  return rows;
}

/// The highest row goes first, so that the rows above it keep their numbers.
void DeleteFiles::deleteRows(std::vector<int> rows, bool withSelection) {
  std::erase_if(rows, [this](int row) { return !parts_.table.hasRow(row); });
  std::ranges::sort(rows, std::greater());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  if (rows.empty()) return;
  parts_.closing.run([&] {
    journal::UndoJournal::Group group(parts_.journal);
    if (withSelection)
      journal::openUndoGroup(parts_.journal, parts_.form1).end();
    else
      parts_.journal.appendUndoMarker(journal::kind::processing);
    parts_.data.beginChange();
    if (parts_.table.aktivniprozor == core::WindowAtWork::Processing) parts_.progress.show(u"Delete ...");
    try {
      const rows::ArtistBook::Batch artists(parts_.artists);
      for (std::size_t i = 0; i < rows.size() && !parts_.table.Stop; ++i) {
        deleteRow(rows[i]);
        if (parts_.progress.shown())
          parts_.progress.UpdateProgress(100.0 * static_cast<double>(i + 1) /
                                         static_cast<double>(rows.size()));
      }
    } catch (const FileError& error) {
      platform::caughtSilently(error);
      // Nothing more goes when it cannot be journalled.
    }
    group.end();
    parts_.settings.set(u"velicinasfiles", core::number(parts_.table.velicinasfiles));
    parts_.data.savenizove(parts_.table);
    parts_.data.SaveID3nizove(parts_.table);
    if (parts_.table.currentRow == 0) parts_.panel.clear();
  });
  sayWhatStayed();
}

void DeleteFiles::deleteRow(int row) {
  const core::TrackTable& table = parts_.table;
  const Text path = table.path(row);
  const Text number = core::number(std::int64_t{row});
  const Text snapshot = journal::rowSnapshot(table, row);
  const bool working = row <= table.brojfajlova();
  std::uint64_t size = 0;
  std::optional<journal::PendingRecord> record;
  letGo(path);
  if (!parts_.files.fileExists(path)) {
    record.emplace(parts_.journal, journal::kind::rowRemoved, number, snapshot);
  } else {
    try {
      size = parts_.files.size(path);
      const Text deleted = journal::deletedFile(size, path, parts_.files.identity(path));
      parts_.trash.send(path, [&](const Text& trashPath) {
        record.reset();
        record.emplace(parts_.journal, std::initializer_list<journal::NewRecord>{
                                           {journal::kind::rowRemoved, number, snapshot},
                                           {journal::kind::fileDeleted, deleted, trashPath}});
      });
    } catch (const journal::NotRecorded&) {
      throw;
    } catch (const FileError& error) {
      return stayed_.add(path, error.description);
    }
  }
  record->keep();
  parts_.rows.removeRow(row);
  if (working)
    parts_.table.velicinasfiles = std::max(0.0, parts_.table.velicinasfiles - static_cast<double>(size));
}

/// Those that play the file stop.
void DeleteFiles::letGo(const Text& path) {
  if (onDeleting) onDeleting(path);
  if (parts_.player.holds(path)) parts_.player.close();
}

void DeleteFiles::sayWhatStayed() {
  stayed_.say(parts_.dialogs, u"Delete", u"file was not deleted", u"files were not deleted");
}

void DeleteFiles::deleteOthers() {
  parts_.closing.run([this] {
    const auto group = journal::openUndoGroup(parts_.journal, parts_.form1);
    parts_.progress.show(u"Delete ...");
    ui::ListBox& list = parts_.form1.List4;
    std::vector<Text>& others = parts_.table.niznomusic;
    const auto shown = std::min(static_cast<std::ptrdiff_t>(list.ListCount()), std::ssize(others));
    const int count = list.SelCount();
    int done = 0;
    std::vector<Text> left;
    const auto gone = [this](const Text& path) {
      letGo(path);
      try {
        if (parts_.files.fileExists(path)) parts_.trash.send(path);
        return true;
      } catch (const FileError& error) {
        stayed_.add(path, error.description);
        return false;
      }
    };
    for (int index = 0; index < list.ListCount(); ++index) {
      const bool chosen = list.Selected(index);
      if (!chosen || parts_.table.Stop || !gone(list.List(index))) left.push_back(list.List(index));
      if (chosen) parts_.progress.UpdateProgress(100.0 * ++done / count);
    }
    // Behind them come those that the list has no room for.
    left.insert(left.end(), others.begin() + shown, others.end());
    others = std::move(left);
    parts_.data.writeList(u"niznomusic.txt", others);
    parts_.settings.set(u"velicinasfiles", core::number(parts_.table.velicinasfiles));
    const int top = list.TopIndex();
    list::listOtherFiles(parts_.table, parts_.files, parts_.progress, parts_.form1);
    list.setTopIndex(top);
  });
  sayWhatStayed();
}

}  // namespace velmora::list
