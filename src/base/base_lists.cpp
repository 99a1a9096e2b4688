#include "base/base_lists.h"

#include <algorithm>
#include <utility>

#include "base/list_sort.h"
#include "core/paths.h"
#include "core/text.h"
#include "ui/list_scroll.h"
#include "ui/quiet_lists.h"

namespace velmora::base {

namespace paths = core::paths;
using ui::ListItem;

namespace {

constexpr TextView albumKey = u"album=";

Text clickedText(const ui::ListBox& list) {
  return list.List(list.ListIndex());
}

int indexOf(const ui::ListBox& list, TextView text) {
  for (int index = 0; index < list.ListCount(); ++index)
    if (list.List(index) == text) return index;
  return -1;
}

/// Selects a row that may lie out of sight.
void selectInSight(ui::ListBox& list, int index) {
  list.setSelected(index, true);
  if (index < list.TopIndex() || index >= list.TopIndex() + list.visibleRows()) ui::ListShowRow(list, index);
}

}  // namespace

BaseLists::BaseLists(const Parts& parts) : parts_(parts) {}

void BaseLists::readRoot() {
  const Text folder = parts_.settings.get(u"DirZaBazu");
  root_ = folder.empty() ? Text() : paths::withSeparator(folder);
}

bool BaseLists::atWork() const {
  return parts_.table.aktivniprozor == core::WindowAtWork::MusicBase && !driven;
}

bool BaseLists::diverted(ui::ListBox& list) {
  if (idle) return true;
  const NextClick click = std::exchange(nextClick, NextClick::Acts);
  if (click == NextClick::Acts) return false;
  const bool toFirst = click == NextClick::WrapsToFirst;
  const int last = list.ListCount() - 1;
  idle = true;
  list.setSelected(toFirst ? 1 : last - 1, false);
  idle = false;
  selectInSight(list, toFirst ? 0 : last);
  return true;
}

bool BaseLists::listKey(ui::ListBox& list, ui::KeyPress press) {
  const int last = list.ListCount() - 1;
  if (press.shift || last < 1) return false;
  // The row that the key would lead to is selected as by the user, and the click puts it right.
  if (press.key == ui::Key::Down && list.ListIndex() == last) {
    nextClick = NextClick::WrapsToFirst;
    list.select({1}, 1);
    return true;
  }
  if (press.key == ui::Key::Up && list.ListIndex() == 0) {
    nextClick = NextClick::WrapsToLast;
    list.select({last - 1}, last - 1);
    return true;
  }
  return false;
}

void BaseLists::IzlistajBazu() {
  ui::Form3& form3 = parts_.form3;
  for (ui::ListBox* list : {&form3.List1, &form3.List2, &form3.List3, &form3.List4, &form3.List5,
                            &form3.List6, &form3.List7, &form3.List8})
    list->Clear();
  if (root_.empty()) return;
  const bool all = parts_.years.allYears();
  std::vector<ListItem> rows;
  for (Text& genre : foldersIn(parts_.files, root_))
    if (all || genrePasses(paths::join(root_, genre))) rows.push_back({std::move(genre), 0});
  sortByName(rows);
  form3.List1.fillItems(std::move(rows));
}

bool BaseLists::genrePasses(const Text& genreFolder) const {
  const std::vector<Text> artists = foldersIn(parts_.files, genreFolder);
  return std::ranges::any_of(
      artists, [&](const Text& artist) { return artistPasses(paths::join(genreFolder, artist)); });
}

bool BaseLists::artistPasses(const Text& artistFolder) const {
  const std::vector<Text> albums = foldersIn(parts_.files, artistFolder);
  return std::ranges::any_of(albums, [this](const Text& album) { return parts_.years.passes(album); });
}

void BaseLists::List1Click() {
  ui::Form3& form3 = parts_.form3;
  if (diverted(form3.List1)) return;
  const LastPosition::OneLook look(parts_.positions);
  const Text genre = clickedText(form3.List1);
  form3.Combo1.setText(genre);
  for (ui::ListBox* list :
       {&form3.List2, &form3.List3, &form3.List4, &form3.List6, &form3.List7, &form3.List8})
    list->Clear();
  form3.List5.fill(selectedTexts(form3.List1));
  listArtists();
  if (quiet() || form3.List2.ListCount() == 0) return;
  const Text artist = parts_.positions.LoadPos(genre);
  for (int index = 0; index < form3.List2.ListCount() && !artist.empty(); ++index)
    if (form3.List2.List(index) == artist) selectInSight(form3.List2, index);
  if (form3.List2.SelCount() == 0) form3.List2.setSelected(0, true);
}

/// Two genres may hold artists of one name: the first such row gets the number of the later genre, and the
/// others keep 0.
void BaseLists::listArtists() {
  const bool all = parts_.years.allYears();
  std::vector<ListItem> rows;
  std::unordered_map<Text, std::size_t> firstRow;  // of an artist, where several genres are listed
  const std::vector<int> genres = parts_.form3.List1.selectedIndexes();
  for (const int genre : genres) {
    const Text folder = genrePath(genre);
    for (Text& artist : foldersIn(parts_.files, folder)) {
      if (!all && !artistPasses(paths::join(folder, artist))) continue;
      // No folder holds a name twice.
      const std::size_t first =
          genres.size() == 1 ? rows.size() : firstRow.try_emplace(artist, rows.size()).first->second;
      rows.push_back({std::move(artist), 0});
      rows[first].data = genre;
    }
  }
  sortByName(rows);
  parts_.form3.List2.fillItems(std::move(rows));
}

void BaseLists::List2Click() {
  ui::Form3& form3 = parts_.form3;
  if (diverted(form3.List2)) return;
  const LastPosition::OneLook look(parts_.positions);
  const Text artist = clickedText(form3.List2);
  form3.Text2.setText(artist);
  for (ui::ListBox* list : {&form3.List3, &form3.List4, &form3.List7, &form3.List8}) list->Clear();
  const std::vector<int> artists = form3.List2.selectedIndexes();
  form3.List6.fill(selectedTexts(form3.List2));

  artistContents_.clear();
  form3.List3.fillItems(albumRows(artists));
  if (form3.List3.ListCount() > 0 && !quiet()) {
    if (atWork()) parts_.positions.SavePos(clickedText(form3.List1), artist);
    selectAlbums(artist);
    List3Click();
  }
  artistContents_.clear();
}

const Contents& BaseLists::artistContents(int artist) {
  const auto [found, isNew] = artistContents_.try_emplace(artist);
  if (isNew) found->second = contentsOf(parts_.files, artistPath(artist));
  return found->second;
}

/// Rows of one text share one number: that of the last artist who has such an album.
std::vector<ListItem> BaseLists::albumRows(const std::vector<int>& artists) {
  bool withoutStays = true;
  if (atWork()) {
    parts_.form3.Text3.setText({});
    withoutStays =
        std::ranges::any_of(artists, [this](int artist) { return !artistContents(artist).files.empty(); });
  }
  std::vector<ListItem> rows;
  if (withoutStays) rows.push_back({Text(withoutFolder), parts_.form3.List2.ListIndex()});
  std::unordered_map<Text, int> lastArtist;
  for (const int artist : artists) {
    for (const Text& album : artistContents(artist).folders) {
      lastArtist.insert_or_assign(album, artist);
      rows.push_back({album, artist});
    }
  }
  const std::size_t first = withoutStays ? 1 : 0;
  for (std::size_t row = first; row < rows.size(); ++row) rows[row].data = lastArtist.at(rows[row].text);
  sortByName(rows, first);
  sortByYear(rows, first);
  if (!parts_.years.allYears())
    std::erase_if(rows, [this](const ListItem& row) { return !parts_.years.passes(row.text); });
  return rows;
}

void BaseLists::selectAlbums(const Text& artist) {
  ui::ListBox& albums = parts_.form3.List3;
  const ui::QuietLists quiet(parts_.table);
  const Text album = parts_.positions.LoadPos(artist + Text(albumKey));
  if (const int index = album.empty() ? -1 : indexOf(albums, album); index >= 0)
    return selectInSight(albums, index);
  for (int index = 0; index < albums.ListCount(); ++index) albums.setSelected(index, true);
}

void BaseLists::List3Click() {
  const ui::ListBox& albums = parts_.form3.List3;
  if (diverted(parts_.form3.List3) || quiet() || albums.ListCount() == 0) return;
  const bool justDeselected = albums.ListIndex() >= 0 && !albums.Selected(albums.ListIndex());
  if (!justDeselected) listTitles();
}

void BaseLists::listTitles() {
  ui::Form3& form3 = parts_.form3;
  const Text clicked = clickedText(form3.List3);
  form3.Text3.setText(clicked == withoutFolder ? Text() : clicked);
  std::vector<Text> albums;
  std::vector<ListItem> rows;
  looseArtists_.clear();
  const auto add = [&rows](std::vector<Text> names, int album) {
    const std::size_t first = rows.size();
    for (Text& name : names) rows.push_back({std::move(name), album});
    sortByName(rows, first);
  };
  for (const int album : form3.List3.selectedIndexes()) {
    albums.push_back(isWithoutFolder(album) ? Text() : form3.List3.List(album));
    if (!isWithoutFolder(album)) {
      add(filesIn(parts_.files, albumPath(album)), album);
      continue;
    }
    for (const int artist : form3.List2.selectedIndexes()) {
      const auto known = artistContents_.find(artist);
      add(known != artistContents_.end() ? known->second.files : filesIn(parts_.files, artistPath(artist)),
          album);
      looseArtists_.resize(rows.size(), artist);
    }
  }
  form3.List7.fill(std::move(albums));
  form3.List4.fillItems(std::move(rows));
  fillTitles();
  if (form3.List8.ListCount() > 0 && !quiet() && atWork()) restoreTitle();
}

TitleText BaseLists::titleText() const {
  return TitleText(parts_.form3.showAutor.checked(), selectedTexts(parts_.form3.List2));
}

void BaseLists::fillTitles() {
  const ui::ListBox& files = parts_.form3.List4;
  const TitleText title = titleText();
  std::vector<ListItem> rows;
  rows.reserve(static_cast<std::size_t>(files.ListCount()));
  for (int index = 0; index < files.ListCount(); ++index)
    rows.push_back({title.of(files.List(index)), index});
  parts_.form3.List8.fillItems(std::move(rows));
}

Text BaseLists::titleOf(int index) const {
  return titleText().of(parts_.form3.List4.List(index));
}

/// The remembered title comes into sight and is clicked last, but is left unselected, so that nothing acts on
/// it.
void BaseLists::restoreTitle() {
  ui::ListBox& titles = parts_.form3.List8;
  const Text title = parts_.positions.LoadPos(clickedText(parts_.form3.List2));
  if (const int index = title.empty() ? -1 : indexOf(titles, title); index >= 0) {
    selectTitle(index);
    ui::ListShowRow(titles, index);
    // What is clicked meanwhile must find the disk as it is.
    artistContents_.clear();
    parts_.desktop.pumpEvents();
    if (titles.List(index) == title) titles.setSelected(index, false);
  }
  if (parts_.form3.plfr.checked() && armed_) titles.setSelected(0, true);
}

void BaseLists::selectTitle(int index) {
  const Unarmed unarmed(*this);
  parts_.form3.List8.setSelected(index, true);
}

void BaseLists::List8Click() {
  ui::Form3& form3 = parts_.form3;
  const int clicked = form3.List8.ListIndex();
  if (diverted(form3.List8) || clicked < 0) return;
  form3.Text4.setText(titleOf(form3.List8.ItemData(clicked)));
  if (form3.plfr.checked() && armed_ && form3.List8.Selected(clicked)) play(clicked);
}

void BaseLists::List8DoubleClick() {
  ui::Form3& form3 = parts_.form3;
  const int clicked = form3.List8.ListIndex();
  if (quiet() || clicked < 0) return;
  parts_.positions.SavePos(clickedText(form3.List2), form3.List8.List(clicked));
  play(clicked);
}

void BaseLists::play(int title) {
  const Text path = filePath(parts_.form3.List8.ItemData(title));
  if (quiet() || path.empty()) return;
  parts_.table.aktivniprozor = core::WindowAtWork::MusicBase;
  if (onPlay) onPlay(path);
}

void BaseLists::List3MouseUp() {
  const ui::ListBox& albums = parts_.form3.List3;
  if (quiet() || albums.ListIndex() < 0) return;
  const bool all = albums.SelCount() == albums.ListCount();
  parts_.positions.SavePos(clickedText(parts_.form3.List2) + Text(albumKey),
                           all ? Text() : clickedText(albums));
}

std::vector<Text> BaseLists::selectedTexts(const ui::ListBox& list) const {
  std::vector<Text> texts;
  for (const int index : list.selectedIndexes()) texts.push_back(list.List(index));
  return texts;
}

}  // namespace velmora::base
