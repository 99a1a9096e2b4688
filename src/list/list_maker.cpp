#include "list/list_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "list/base_list.h"
#include "list/file_sizes.h"
#include "list/listed_files.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/display_limit.h"
#include "ui/view_choice.h"

namespace velmora::list {

using core::Track;
using platform::Buttons;
using platform::Icon;

namespace {

constexpr TextView title = u"Add Files";

}  // namespace

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
  {
    const core::Settings::Together together(parts_.settings);
    for (const TextView key : {u"stanje0", u"stanje1", u"stanje2"}) parts_.settings.set(key, {});
  }
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
  Found found;
  found.again = std::ranges::any_of(parts_.table.bazepesama, [&folder](const Text& earlier) {
    return core::paths::within(folder, earlier);
  });
  if (!found.again) enterFolder(folder);
  parts_.closing.run([&] { makeList(folder, found); });
  if (!found.readable) tell(u"This folder cannot be read.");
  if (found.allListed) return tell(u"Files in that folder are already on list.");
  if (found.leftOut > 0) tellLeftOut(found.leftOut);
  found.unreadable.say(parts_.dialogs, title, u"folder could not be read", u"folders could not be read");
}

void ListMaker::enterFolder(const Text& folder) {
  parts_.table.bazepesama.push_back(folder);
  parts_.table.brojbaza = static_cast<int>(parts_.table.bazepesama.size());
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
  if (!found.again) beginList();
  if (!findFiles(folder, found) || found.nothingNew) return;
  if (found.again) beginList();
  takeFound(found);
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

void ListMaker::beginList() {
  ui::Form1& form1 = parts_.windows.form1;
  form1.ostali.setEnabled(true);
  if (form1.List4.ListCount() == 0 && !parts_.table.Stop) findOldArtists();
  const bool otherRows = ui::viewOf(form1) == ui::View::Other;
  ui::enterView(form1, ui::View::Music);
  if (otherRows) listRows();
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
  FolderScan scan(scanParts(), FolderScan::Mode::NewMusic);
  // A second look must not bring back what was filed away since.
  const bool leaveBase = found.again && !core::paths::within(folder, table.dirzabazu);
  const auto taker = [&](std::vector<FoundFile>& into) {
    return [&table, &into, leaveBase](FoundFile file) {
      if (!leaveBase || !core::paths::within(file.path, table.dirzabazu)) into.push_back(std::move(file));
    };
  };
  scan.onMusic = taker(found.music);
  scan.onOther = taker(found.other);
  try {
    scan.Pretrazi(folder);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    if (!found.again) leaveFolder();
    return found.readable = false;
  }
  found.leftOut = scan.leftOut();
  found.unreadable = scan.unreadable();
  leaveOutListed(found);
  found.nothingNew = found.again && found.music.empty() && found.other.empty();
  found.allListed = found.nothingNew && !table.Stop && found.unreadable.empty();
  return true;
}

/// Leaves out of what was found the files that are listed already, by this path or through a link. A file
/// comes before the links that lead to it, wherever they lie. A file that was no music when it was listed,
/// and is now, changes over.
void ListMaker::leaveOutListed(Found& found) {
  core::TrackTable& table = parts_.table;
  ListedFiles songs(parts_.files);
  ListedFiles others(parts_.files);
  for (int row = 1; row <= table.workingRows(); ++row) songs.add(table.path(row));
  for (const Text& path : table.niznomusic) others.add(path);
  const auto markNew = [](const std::vector<FoundFile>& files, const auto& isNew) {
    std::vector<bool> marks(files.size());
    for (const bool links : {false, true})
      for (std::size_t i = 0; i < files.size(); ++i)
        if (files[i].link == links) marks[i] = isNew(files[i]);
    return marks;
  };
  const auto keepMarked = [](std::vector<FoundFile>& files, const std::vector<bool>& marks) {
    std::size_t i = 0;
    std::erase_if(files, [&](const FoundFile&) { return !marks[i++]; });
  };
  const auto music = markNew(found.music, [&](const FoundFile& file) { return songs.add(file); });
  const auto other =
      markNew(found.other, [&](const FoundFile& file) { return !songs.contains(file) && others.add(file); });
  keepMarked(found.music, music);
  keepMarked(found.other, other);
}

void ListMaker::takeFound(Found& found) {
  core::TrackTable& table = parts_.table;
  if (!table.niznomusic.empty() && !found.music.empty()) {
    std::unordered_set<TextView> music;
    for (const FoundFile& file : found.music) music.insert(file.path);
    std::erase_if(table.niznomusic, [&music](const Text& path) { return music.contains(path); });
  }
  table.setBrojfajlova(table.workingRows());
  if (!found.music.empty()) cutTail();
  for (FoundFile& file : found.music) table.appendPath(std::move(file.path));
  if (!found.music.empty()) table.setBrojfajlova(table.rows());
  for (FoundFile& file : found.other) table.niznomusic.push_back(std::move(file.path));
  found.music = {};
  found.other = {};
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
  parts_.dialogs.message(text, Text(title), Buttons::Ok, Icon::Information);
}

}  // namespace velmora::list
