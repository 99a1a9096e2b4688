#include "newmusic/new_music_lists.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

#include "base/busy.h"
#include "core/natural_order.h"
#include "core/paths.h"
#include "core/text.h"
#include "newmusic/click_hold.h"
#include "newmusic/tag_values.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::newmusic {

namespace {

/// Natural order, those without a name last.
std::vector<Text> inOrder(std::vector<Text> artists) {
  std::ranges::sort(artists, [](const Text& left, const Text& right) {
    if (left.empty() != right.empty()) return right.empty();
    return core::naturalLess(left, right);
  });
  return artists;
}

/// Without the separator at its end, so that it is found in the paths below it; "/" becomes nothing.
TextView openEnded(TextView folder) {
  return folder.ends_with(core::paths::separator) ? core::dropRight(folder, 1) : folder;
}

}  // namespace

std::vector<Text> selectedTexts(const ui::ListBox& list) {
  std::vector<Text> texts;
  for (const int index : list.selectedIndexes()) texts.push_back(list.List(index));
  return texts;
}

void selectOnly(ui::ListBox& list, int index) {
  if (index >= 0 && index < list.ListCount()) list.select({index}, index);
}

void NewMusicLists::IzlistajVrste() {
  for (ui::ListBox* list : {&form2_.List1, &form2_.List2, &form2_.List3, &form2_.List4, &form2_.List8})
    list->Clear();
  const core::TrackTable& table = parts_.table;
  if (table.brojfajlova() == 0) return;
  {
    std::optional<base::Busy> busy;
    if (table.aktivniprozor == core::WindowAtWork::MusicBase)
      busy.emplace(parts_.windows, parts_.progress, u"Preparing List ...");
    std::vector<Text> rows = genresOf(table, [&](int row) {
      if (busy) parts_.progress.UpdateProgress(100.0 * row / table.brojfajlova());
    });
    rows.insert(rows.begin(), {Text(everyAutor), Text(withoutGenree)});
    form2_.List1.fill(std::move(rows));
  }
  parts_.summary.moze();
}

std::vector<GenreRow> NewMusicLists::chosenGenres() const {
  if (form2_.genreByFolder.chosen()) return {{0, Text(everyAutor)}};
  std::vector<GenreRow> genres;
  for (const int index : form2_.List1.selectedIndexes()) genres.push_back({index, form2_.List1.List(index)});
  return genres;
}

/// Row 0 stands for everything, so that it cannot be chosen together with others.
void NewMusicLists::keepEveryAlone(ui::ListBox& list) {
  if (list.SelCount() < 2 || !list.Selected(0)) return;
  const ClickHold hold(held_);
  const int clicked = list.ListIndex();
  list.setSelected(0, false);
  list.setListIndex(clicked);
}

void NewMusicLists::clearArtists() {
  for (ui::ListBox* list : {&form2_.List2, &form2_.List6, &form2_.List3, &form2_.List8, &form2_.List4})
    list->Clear();
}

void NewMusicLists::clearSongs() {
  for (ui::ListBox* list : {&form2_.List4, &form2_.List7, &form2_.List9, &form2_.List10}) list->Clear();
  form2_.Text3.setText({});
  form2_.Text5.setText({});
}

void NewMusicLists::List1Click() {
  if (held_ > 0) return;
  clearArtists();
  form2_.Combo1.setText({});
  keepEveryAlone(form2_.List1);
  const std::vector<GenreRow> genres = chosenGenres();
  if (genres.size() == 1 && genres.front().index >= firstGenre) form2_.Combo1.setText(genres.front().text);
  std::vector<ui::ListItem> chosen;
  chosen.reserve(genres.size());
  for (const GenreRow& genre : genres)
    chosen.push_back({genre.index == 1 ? Text() : genre.text, genre.index});
  form2_.List5.fillItems(std::move(chosen));
  if (!genres.empty()) form2_.List2.fill(inOrder(NewMusicRows(parts_.table).artists(genres)));
  chooseFirstArtist();
}

void NewMusicLists::chooseFirstArtist() {
  if (!quiet()) form2_.List2.setSelected(0, true);
}

void NewMusicLists::Dir1Click() {
  if (held_ > 0) return;
  clearArtists();
  const TextView folder = openEnded(form2_.Dir1.path());
  const Text novidir = parts_.settings.get(u"novidir");
  form2_.List2.fill(inOrder(folder == openEnded(novidir)
                                ? parts_.table.autori
                                : NewMusicRows(parts_.table).artistsInFolder(folder)));
  form2_.Combo1.setText(folderGenre());
  chooseFirstArtist();
}

Text NewMusicLists::folderGenre() const {
  return Text(core::paths::fileName(openEnded(form2_.Dir1.path())));
}

void NewMusicLists::Drive1Change() {
  const Text& volume = form2_.Drive1.text();
  if (held_ > 0 || volume.empty()) return;
  form2_.Dir1.click(volume);
}

void NewMusicLists::listVolumes() {
  const ClickHold hold(held_);
  std::vector<ui::ComboRow> rows;
  for (Text& volume : parts_.files.volumes()) rows.push_back({std::move(volume)});
  form2_.Drive1.setRows(std::move(rows));
  try {
    form2_.Drive1.setText(parts_.files.volumeOf(form2_.Dir1.path()));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    form2_.Drive1.setText({});
  }
}

void NewMusicLists::List2Click() {
  if (held_ > 0) return;
  const Text clicked = form2_.List2.List(form2_.List2.ListIndex());
  form2_.List6.fill(selectedTexts(form2_.List2));
  form2_.List4.Clear();
  form2_.Text2.setText(clicked);
  {
    const NewMusicRows rows(parts_.table);
    fillAlbums(rows);
    if (form2_.albumByFolder.chosen()) fillFolders(rows);
  }
  if (quiet()) return;
  if (form2_.albumByFolder.chosen()) selectOnly(form2_.List8, 0);
  parts_.mirror.showArtist(clicked);
}

void NewMusicLists::fillAlbums(const NewMusicRows& rows) {
  std::vector<Text> albums = rows.albums(chosenGenres(), selectedTexts(form2_.List2));
  albums.insert(albums.begin(), {Text(everySongs), Text(withoutAlbumAndYear)});
  form2_.List3.fill(std::move(albums));
}

/// All songs of the artists, and the folders that they lie in. List3 then stands for all albums.
void NewMusicLists::fillFolders(const NewMusicRows& rows) {
  {
    const ClickHold hold(held_);
    selectOnly(form2_.List3, 0);
  }
  clearSongs();
  const std::vector<int> songs = rows.songs(chosenGenres(), selectedTexts(form2_.List2));
  showSongs(songs);
  std::vector<Text> folders = rows.folders(songs);
  folders.insert(folders.begin(), Text(everySongs));
  form2_.List8.fill(std::move(folders));
}

void NewMusicLists::showSongs(const std::vector<int>& rows) {
  std::vector<ui::ListItem> songs;
  songs.reserve(rows.size());
  for (const int row : rows) songs.push_back({parts_.table.track(row).pesma.text(), row});
  form2_.List4.fillItems(std::move(songs));
}

void NewMusicLists::List3Click() {
  if (held_ > 0) return;
  clearSongs();
  keepEveryAlone(form2_.List3);
  const core::TrackTable& table = parts_.table;
  std::vector<int> rows = NewMusicRows(table).songs(chosenGenres(), selectedTexts(form2_.List2));
  const std::vector<Text> albums = selectedTexts(form2_.List3);
  form2_.List7.fill(albums);
  if (!form2_.List3.Selected(0)) {
    std::unordered_set<Text> chosen(albums.begin(), albums.end());
    if (form2_.List3.Selected(1)) chosen.emplace();
    std::erase_if(rows, [&](int row) { return !chosen.contains(TagAlbumYear(table, row)); });
  }
  showSongs(rows);
  if (albums.size() != 1 || form2_.List3.selectedIndexes().front() < firstAlbum || rows.empty()) return;
  form2_.Text3.setText(TagAlbum(table, rows.front()));
  form2_.Text5.setText(TagYear(table, rows.front()));
}

void NewMusicLists::List8Click() {
  if (held_ > 0) return;
  clearSongs();
  keepEveryAlone(form2_.List8);
  const core::TrackTable& table = parts_.table;
  std::vector<int> rows = NewMusicRows(table).songs(chosenGenres(), selectedTexts(form2_.List2));
  std::vector<Text> folders;
  for (const int index : form2_.List8.selectedIndexes())
    if (index >= firstFolder) folders.push_back(folderOfRow(form2_.List8.List(index)));
  if (!form2_.List8.Selected(0)) {
    const std::unordered_set<TextView> chosen(folders.begin(), folders.end());
    std::erase_if(rows, [&](int row) { return !chosen.contains(lastFolder(table, row)); });
  }
  showSongs(rows);
  if (folders.size() == 1) form2_.Text3.setText(folders.front());
  form2_.List9.fill(std::move(folders));
}

void NewMusicLists::List4Click() {
  const int index = form2_.List4.ListIndex();
  if (held_ > 0 || index < 0) return;
  const core::TrackTable& table = parts_.table;
  const int row = form2_.List4.ItemData(index);
  form2_.Text4.setText(table.track(row).pesma.text());
  form2_.Text2.setText(table.track(row).pevac.text());
  if (form2_.genreByTag.chosen()) form2_.Combo1.setText(TagGenre(table, row));
  if (form2_.albumByTag.chosen()) {
    form2_.Text3.setText(TagAlbum(table, row));
    form2_.Text5.setText(TagYear(table, row));
  }
  form2_.statusLabel.setText(table.path(row));
  if (!quiet() && table.aktivniprozor == core::WindowAtWork::NewMusic) parts_.mirror.showSong(row);
}

void NewMusicLists::showGenresByTag() {
  form2_.List1.setVisible(true);
  form2_.Combo1.setVisible(true);
  form2_.Dir1.setVisible(false);
  form2_.Drive1.setVisible(false);
}

void NewMusicLists::genresByTag() {
  if (held_ > 0) return;
  showGenresByTag();
  selectOnly(form2_.List1, 0);
}

void NewMusicLists::showFolderTree(Text folder) {
  form2_.List1.setVisible(false);
  form2_.Dir1.setPath(std::move(folder));
  listVolumes();
  form2_.Dir1.setVisible(true);
  form2_.Drive1.setVisible(true);
}

void NewMusicLists::showFolder(const Text& folder) {
  {
    const ClickHold hold(held_);
    selectOnly(form2_.List1, 0);
  }
  showFolderTree(folder);
  Dir1Click();
}

void NewMusicLists::genresByFolder() {
  if (held_ > 0) return;
  selectOnly(form2_.List1, 0);
  showFolderTree(parts_.settings.get(u"novidir"));
}

void NewMusicLists::albumsByTag() {
  if (held_ > 0) return;
  form2_.List3.setVisible(true);
  form2_.List8.setVisible(false);
  // List4 showed what List8 had chosen.
  if (!quiet()) selectOnly(form2_.List3, 0);
}

void NewMusicLists::albumsByFolder() {
  if (held_ > 0) return;
  form2_.List3.setVisible(false);
  form2_.List8.setVisible(true);
  fillFolders(NewMusicRows(parts_.table));
  if (!quiet()) selectOnly(form2_.List8, 0);
}

void NewMusicLists::artistAdded(const Text& artist) {
  if (quiet()) return;  // whoever changes many rows lists them anew
  int place = 0;
  for (int index = 0; index < form2_.List2.ListCount(); ++index) {
    if (form2_.List2.List(index) == artist) return;
    if (core::naturalLess(form2_.List2.List(index), artist)) place = index + 1;
  }
  form2_.List2.insertItem(place, artist);
}

void NewMusicLists::artistRemoved(const Text& artist) {
  for (int index = 0; index < form2_.List2.ListCount(); ++index)
    if (form2_.List2.List(index) == artist) return form2_.List2.RemoveItem(index);
}

}  // namespace velmora::newmusic
