#include <utility>

#include "base/base_lists.h"
#include "core/paths.h"

namespace velmora::base {

namespace paths = core::paths;

namespace {

bool inside(const ui::ListBox& list, int index) {
  return index >= 0 && index < list.ListCount();
}

/// The blanks that a row's text ends in stay: on a disk that tells such names apart, without them it would be
/// another folder.
Text part(const ui::ListBox& list, int index) {
  return paths::withSeparator(list.List(index));
}

}  // namespace

Text BaseLists::genrePath(int index) const {
  const ui::ListBox& genres = parts_.form3.List1;
  if (root_.empty() || !inside(genres, index)) return {};
  return root_ + part(genres, index);
}

Text BaseLists::artistPath(int index) const {
  const ui::ListBox& artists = parts_.form3.List2;
  if (!inside(artists, index)) return {};
  const Text genre = genrePath(artists.ItemData(index));
  return genre.empty() ? Text() : genre + part(artists, index);
}

Text BaseLists::albumPath(int index) const {
  const ui::ListBox& albums = parts_.form3.List3;
  if (!inside(albums, index)) return {};
  const Text artist = artistPath(albums.ItemData(index));
  return artist.empty() || isWithoutFolder(index) ? artist : artist + part(albums, index);
}

Text BaseLists::filePath(int index) {
  const ui::ListBox& files = parts_.form3.List4;
  if (!inside(files, index)) return {};
  if (isWithoutFolder(files.ItemData(index))) findArtistOf(index);
  const Text folder = albumPath(files.ItemData(index));
  return folder.empty() ? Text() : folder + files.List(index);
}

/// Files of several artists may bear one name. They are listed artist by artist, so the n-th row of a name is
/// the file of the n-th artist who has it.
void BaseLists::findArtistOf(int index) {
  ui::Form3& form3 = parts_.form3;
  const Text& name = form3.List4.List(index);
  const std::vector<int> artists = form3.List2.selectedIndexes();
  int before = 0;
  for (int other = 0; other < index && artists.size() > 1; ++other)
    if (form3.List4.ItemData(other) == 0 && form3.List4.List(other) == name) ++before;
  for (const int artist : artists) {
    if (!parts_.files.fileExists(artistPath(artist) + name) || before-- > 0) continue;
    form3.List3.setItemData(0, artist);
    return;
  }
}

std::vector<Text> BaseLists::draggedFiles(const ui::ListBox& column) {
  ui::Form3& form3 = parts_.form3;
  std::vector<Text> dragged;
  const auto addFolder = [&dragged](const Text& folder) {
    if (!folder.empty()) dragged.emplace_back(paths::withoutSeparator(folder));
  };
  const auto addFile = [&](int index) {
    if (Text path = filePath(index); !path.empty()) dragged.push_back(std::move(path));
  };
  for (const int index : column.selectedIndexes()) {
    if (&column == &form3.List1) addFolder(genrePath(index));
    if (&column == &form3.List2) addFolder(artistPath(index));
    if (&column == &form3.List8) addFile(column.ItemData(index));
    if (&column != &form3.List3) continue;
    if (!isWithoutFolder(index)) {
      addFolder(albumPath(index));
      continue;
    }
    // The artist's folder would take the albums along.
    for (int file = 0; file < form3.List4.ListCount(); ++file)
      if (form3.List4.ItemData(file) == index) addFile(file);
  }
  return dragged;
}

}  // namespace velmora::base
