#include "list/list_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "list/base_list.h"
#include "list/file_sizes.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/display_limit.h"
#include "ui/view_choice.h"

namespace velmora::list {

using core::Track;
using platform::Buttons;
using platform::Icon;

FolderScan::Parts ListMaker::scanParts() const {
  return {parts_.table, parts_.files, parts_.desktop, parts_.progress, parts_.windows.form5};
}

// --- New List ---------------------------------------------------------------------------------------------

void ListMaker::newList() {
  if (busy()) return;
  const Text question =
      u"This will clear current list. All undo information will be lost. Do you want to continue?";
  if (parts_.dialogs.message(question, u"Clear List", Buttons::OkCancel, Icon::Question) !=
      platform::Answer::Ok)
    return;
  ui::Form1& form1 = parts_.windows.form1;
  for (ui::ListBox* list : {&form1.List4, &form1.List1, &form1.List2, &form1.List7, &form1.List8})
    list->Clear();
  try {
    parts_.journal.appendUndoMarker(journal::kind::newList);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The history ends below whether or not it could be marked.
  }
  eraseTable();
  if (onCleared) onCleared();
  form1.Text8.setText({});
  form1.Text5.setText({});
  parts_.panel.clear();
  for (const TextView key : {u"stanje0", u"stanje1", u"stanje2"}) parts_.settings.set(key, {});
  removeFiles();
  form1.ostali.setEnabled(false);
  form1.listTitle.setText({});
  form1.countLabel.setText(u"  new songs ");
  parts_.table.velicinasfiles = 0;
  form1.sizeLabel.setText(core::sizeText(0));
  parts_.table.brojbaza = 0;
}

/// The columns that are not named here keep their storage; a row that is read anew fills them.
void ListMaker::eraseTable() {
  core::TrackTable& table = parts_.table;
  table.setBrojfajlova(0);
  constexpr std::array<core::Column, 9> columns = {
      &Track::imaid3v2,   &Track::imaid3v1,   &Track::procitan,   &Track::nizdes,    &Track::crtapos,
      &Track::pesmaid3v1, &Track::pesmaid3v2, &Track::pevacID3v2, &Track::pevacID3v1};
  for (const core::Column column : columns) table.erase(column);
  table.niznomusic.clear();
  table.bazepesama.clear();
  table.autori.clear();
  table.currentRow = 0;
}

void ListMaker::removeFiles() {
  parts_.journal.remove();
  for (const TextView file :
       {u"crtapos.txt", u"autori.txt", u"nizdes.txt", u"niznomusic.txt", u"bazepesama.txt"})
    parts_.data.remove(file);
  for (const core::Column column : core::tagColumns()) parts_.data.remove(core::DataFolder::fileOf(column));
}

// --- Add --------------------------------------------------------------------------------------------------

void ListMaker::addFolder() {
  if (busy()) return;
  const auto folder = parts_.dialogs.pickFolder(u"Select folder where are music for add on list.",
                                                parts_.settings.get(u"novidir"));
  if (!folder) return;
  parts_.windows.form1.folderTree.setPath(*folder);
  add();
}

void ListMaker::add() {
  if (busy()) return;
  // A folder that another program names may end in a separator, and must not pass for one more folder.
  const Text folder(core::paths::withoutSeparator(parts_.windows.form1.folderTree.path()));
  if (folder.empty()) return;
  if (!core::paths::fitsRecord(folder)) return tellLeftOut(1);
  parts_.settings.set(u"novidir", folder);
  if (!enterFolder(folder)) {
    tell(u"Files in that folder are already on list.");
    return;
  }
  Found found;
  parts_.closing.run([&] { makeList(folder, found); });
  if (!found.readable) tell(u"This folder cannot be read.");
  if (found.leftOut > 0) tellLeftOut(found.leftOut);
}

/// Puts the folder on the list of added folders, unless it lies under one of them.
bool ListMaker::enterFolder(const Text& folder) {
  std::vector<Text>& added = parts_.table.bazepesama;
  const bool onList = std::ranges::any_of(added, [&folder](const Text& earlier) {
    return !earlier.empty() && folder.find(earlier) != Text::npos;
  });
  if (onList) return false;
  added.push_back(folder);
  parts_.table.brojbaza = static_cast<int>(added.size());
  return true;
}

void ListMaker::leaveFolder() {
  parts_.table.bazepesama.pop_back();
  --parts_.table.brojbaza;
}

void ListMaker::makeList(const Text& folder, Found& found) {
  core::TrackTable& table = parts_.table;
  ui::Form1& form1 = parts_.windows.form1;
  table.dirzabazu = parts_.settings.get(u"DirZaBazu");
  parts_.progress.show(u"Searching Music And Others Files In This Folder. Please be very patient...");
  parts_.progress.UpdateProgress(2);
  form1.ostali.setEnabled(true);
  if (form1.List4.ListCount() == 0) findOldArtists();
  const bool otherRows = ui::viewOf(form1) == ui::View::Other;
  ui::enterView(form1, ui::View::Music);
  if (otherRows) listRows();
  if (!findFiles(folder, found)) return;
  form1.List4.Clear();
  storeHighest();
  parts_.progress.UpdateProgress(20);
  int rowsToRead = 0;
  if (parts_.windows.form5.refreshOldMusicList.checked() && !table.dirzabazu.empty() && !table.Stop) {
    rowsToRead = table.brojfajlova();
    BaseList(scanParts(), parts_.data).refresh(table.dirzabazu, u"Refresh Music Base List ...");
  }
  appendTail();
  showRows();
  if (table.brojfajlova() == 0) {
    parts_.data.writeList(u"niznomusic.txt", table.niznomusic);
    return;
  }
  parts_.progress.UpdateProgress(40);
  parts_.progress.setText(u"Read ID3 tag...");
  table.resizeColumns();
  const auto sizes = readTags(rowsToRead);
  findDashes();
  parts_.data.beginChange();
  parts_.data.SaveID3nizove(table);
  collectArtists();
  parts_.data.savenizove(table);
  sumSizes(sizes);
}

void ListMaker::findOldArtists() {
  core::TrackTable& table = parts_.table;
  table.stariautori = {Text()};
  if (!table.dirzabazu.empty())
    std::ranges::move(artistFolders(scanParts(), table.dirzabazu), std::back_inserter(table.stariautori));
  parts_.data.writeList(u"stariautori.txt", table.stariautori);
}

/// False when the folder itself cannot be read: it is then as if it had never been added.
bool ListMaker::findFiles(const Text& folder, Found& found) {
  core::TrackTable& table = parts_.table;
  table.setBrojfajlova(table.workingRows());
  FolderScan scan(scanParts(), FolderScan::Mode::NewMusic);
  scan.onMusic = [this, &table](Text path) {
    cutTail();
    table.appendPath(std::move(path));
    table.setBrojfajlova(table.rows());
  };
  scan.onOther = [&table](Text path) { table.niznomusic.push_back(std::move(path)); };
  try {
    scan.Pretrazi(folder);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    leaveFolder();
    return found.readable = false;
  }
  found.leftOut = scan.leftOut();
  return true;
}

void ListMaker::storeHighest() {
  const int rows = parts_.table.brojfajlova();
  if (core::value(parts_.settings.get(u"max1")) < rows) parts_.settings.setNumber(u"max1", rows);
}

/// Takes the copy of the Music Base list off the end, in all columns: what is known of a row of the base must
/// not pass to a row of the working list.
void ListMaker::cutTail() {
  core::TrackTable& table = parts_.table;
  if (table.rows() <= table.brojfajlova()) return;
  table.truncate(table.brojfajlova());
  table.resizeColumns();
}

void ListMaker::appendTail() {
  cutTail();
  for (const Text& path : parts_.table.bazaniz) parts_.table.appendPath(path);
}

void ListMaker::showRows() {
  core::TrackTable& table = parts_.table;
  if (ui::overLimit(table.brojfajlova()))
    parts_.dialogs.message(
        u"There is to many files. Program can display only 32737 files on list. Process these files first, "
        u"then make list again for others. ",
        u"Make List", Buttons::Ok, Icon::Information);
  listRows();
}

void ListMaker::listRows() {
  const core::TrackTable& table = parts_.table;
  std::vector<Text> paths;
  for (int row = 1; row <= ui::shownRows(table.workingRows()); ++row) paths.push_back(table.path(row));
  parts_.windows.form1.List4.fill(std::move(paths));
}

/// Returns the lengths of the files that were opened for it, one place for each row.
std::vector<std::optional<std::uint64_t>> ListMaker::readTags(int rows) {
  core::TrackTable& table = parts_.table;
  std::vector<std::optional<std::uint64_t>> sizes(static_cast<std::size_t>(rows));
  for (int row = 1; row <= rows && !table.Stop; ++row) {
    sizes[static_cast<std::size_t>(row - 1)] = parts_.panel.readTags(table.path(row), row);
    parts_.progress.UpdateProgress(100.0 * row / rows);
    parts_.desktop.pumpEvents();
  }
  return sizes;
}

/// Stop does not end this one: a row without its name parts would be no row.
void ListMaker::findDashes() {
  for (int row = 1; row <= parts_.table.rows(); ++row) {
    parts_.dashes.find(row);
    parts_.desktop.pumpEvents();
  }
}

void ListMaker::collectArtists() {
  core::TrackTable& table = parts_.table;
  parts_.artists.collect([this, &table](int row) {
    parts_.progress.UpdateProgress(50 + 50.0 * row / table.brojfajlova());
    if (table.vrsta != core::Review::ArtistList) return true;
    if (onArtistList) onArtistList();
    return false;
  });
}

/// `known` holds the lengths of the first rows, as far as they need not be asked for again.
void ListMaker::sumSizes(const std::vector<std::optional<std::uint64_t>>& known) {
  core::TrackTable& table = parts_.table;
  double bytes = 0;
  for (int row = 1; row <= table.workingRows(); ++row) {
    const auto place = static_cast<std::size_t>(row - 1);
    bytes += place < known.size() && known[place] ? static_cast<double>(*known[place])
                                                  : bytesOf(parts_.files, table.path(row));
    parts_.desktop.pumpEvents();
  }
  table.velicinasfiles = std::abs(bytes);
  parts_.settings.setNumber(u"velicinasfiles", static_cast<std::int64_t>(table.velicinasfiles));
}

void ListMaker::tellLeftOut(int count) {
  const Text text =
      count == 1
          ? Text(u"One file or folder was left out, because its name holds a double quote or a line break.")
          : core::plain(std::int64_t{count}) +
                u" files or folders were left out, because their names hold a double quote or a line break.";
  tell(text);
}

void ListMaker::tell(const Text& text) {
  parts_.dialogs.message(text, u"Add Files", Buttons::Ok, Icon::Information);
}

}  // namespace velmora::list
