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
  const auto place = static_cast<std::size_t>(index);
  if (isWithoutFolder(files.ItemData(index)) && place < looseArtists_.size())
    parts_.form3.List3.setItemData(0, looseArtists_[place]);
  const Text folder = albumPath(files.ItemData(index));
  return folder.empty() ? Text() : folder + files.List(index);
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
