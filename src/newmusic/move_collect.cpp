#include "newmusic/move_collect.h"

#include <algorithm>
#include <unordered_map>

#include "newmusic/move_names.h"
#include "newmusic/new_music_lists.h"
#include "newmusic/tag_values.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::newmusic {

namespace {

/// Selected rows are gone through from the bottom up.
template <typename Item>
std::vector<Item> lastFirst(std::vector<Item> items) {
  std::ranges::reverse(items);
  return items;
}

}  // namespace

void MoveCollect::titles(const Text& album) {
  for (const int index : lastFirst(form2_.List4.selectedIndexes()))
    add({form2_.List4.ItemData(index)}, album);
}

void MoveCollect::albums(const std::vector<GenreRow>& genres, const Text& artist) {
  const std::vector<int> songs = rows_.songs(genres, selectedTexts(form2_.List2));
  std::unordered_map<Text, std::vector<int>> rowsOf;
  for (Group& group : byAlbum(songs)) rowsOf.emplace(std::move(group.text), std::move(group.rows));
  const ui::ListBox& list = byFolder() ? form2_.List8 : form2_.List3;
  for (const int index : lastFirst(list.selectedIndexes())) {
    const Text& row = list.List(index);
    const bool noAlbum = !byFolder() && index == 1;
    const std::vector<int>& rows = index == 0 ? songs : rowsOf[noAlbum ? Text() : row];
    if (rows.empty()) continue;
    const Text name = byFolder() ? albumFolderOfFolder(index, row) : albumFolder(index, row);
    const Text folder = artist + pathLevel(name);
    makeFolder(folder);
    add(rows, folder);
  }
}

void MoveCollect::artists(const std::vector<GenreRow>& genres, const Text& genre) {
  for (const int index : lastFirst(form2_.List2.selectedIndexes()))
    oneArtist(genres, form2_.List2.List(index), genre);
}

void MoveCollect::genres(const std::vector<GenreRow>& genres, const Text& root) {
  for (const GenreRow& genre : lastFirst(genres)) {
    const Text folder = root + pathLevel(genreFolder(genre));
    makeFolder(folder);
    for (const Text& artist : rows_.artists({genre})) oneArtist({genre}, artist, folder);
  }
}

void MoveCollect::folderOfMusic(const Text& genre) {
  makeFolder(genre);
  for (int index = 0; index < form2_.List2.ListCount(); ++index)
    oneArtist({{0, Text(everyAutor)}}, form2_.List2.List(index), genre);
}

/// All albums of an artist, one after the other, the files without album first. The row that stands for all
/// of them is passed over, for it would take every file twice.
void MoveCollect::oneArtist(const std::vector<GenreRow>& genres, const Text& artist, const Text& genre) {
  const std::vector<int> songs = rows_.songs(genres, {artist});
  if (songs.empty()) return;
  const Text artistPath = genre + pathLevel(artistFolder(artist));
  makeFolder(artistPath);
  for (const Group& group : byAlbum(songs)) {
    const Text name = byFolder()           ? albumFolderOfFolder(firstFolder, group.text)
                      : group.text.empty() ? Text()
                                           : albumFolder(firstAlbum, group.text);
    const Text folder = artistPath + pathLevel(name);
    if (folder != artistPath) makeFolder(folder);
    add(group.rows, folder);
  }
}

/// The rows by the text of the row of List3 or List8 that they belong to: files without album first, the
/// others in the order of their first file.
std::vector<MoveCollect::Group> MoveCollect::byAlbum(const std::vector<int>& rows) const {
  std::vector<Group> groups;
  std::unordered_map<Text, std::size_t> places;
  if (!byFolder()) {
    groups.emplace_back();
    places.emplace(Text(), 0);
  }
  for (const int row : rows) {
    Text text = byFolder() ? folderRow(lastFolder(table_, row)) : TagAlbumYear(table_, row);
    const auto [place, added] = places.try_emplace(text, groups.size());
    if (added) groups.push_back({std::move(text), {}});
    groups[place->second].rows.push_back(row);
  }
  if (!groups.empty() && groups.front().rows.empty()) groups.erase(groups.begin());
  return groups;
}

/// What could not be made is told when a file cannot be moved there. Nothing is made below it, so that every
/// folder stands in the journal.
void MoveCollect::makeFolder(const Text& folder) {
  for (const Text& missing : missing_)
    if (folder.starts_with(missing)) return;
  try {
    folders_.PostojiDir(folder);
  } catch (const journal::NotRecorded&) {
    throw;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    missing_.push_back(folder);
  }
}

void MoveCollect::add(const std::vector<int>& rows, const Text& folder) {
  planned_.resize(static_cast<std::size_t>(table_.rows()) + 1);
  PlannedMoves moves{folder, {}};
  for (const int row : rows) {
    if (!table_.hasRow(row) || planned_[static_cast<std::size_t>(row)]) continue;
    planned_[static_cast<std::size_t>(row)] = true;
    moves.rows.push_back(row);
  }
  if (!moves.rows.empty()) moves_.push_back(std::move(moves));
}

}  // namespace velmora::newmusic
