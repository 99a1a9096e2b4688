#pragma once

#include <algorithm>
#include <vector>

#include "base/new_music_rows.h"
#include "base/tag_values.h"
#include "core/paths.h"
#include "ui/list_box.h"

namespace velmora::test {

inline std::vector<Text> texts(const ui::ListBox& list) {
  std::vector<Text> texts;
  for (int index = 0; index < list.ListCount(); ++index) texts.push_back(list.List(index));
  return texts;
}

inline std::vector<int> data(const ui::ListBox& list) {
  std::vector<int> data;
  for (int index = 0; index < list.ListCount(); ++index) data.push_back(list.ItemData(index));
  return data;
}

/// What the lists of the New Music Window must hold, told by plain walks over all rows.
class NaiveLists {
 public:
  explicit NaiveLists(const core::TrackTable& table) : table_(table) {}

  std::vector<Text> genres() const {
    std::vector<Text> list = {Text(base::everyAutor), Text(base::withoutGenree)};
    for (int i = 1; i <= table_.brojfajlova(); ++i) {
      bool known = genre(i).empty();
      for (int j = 1; j < i; ++j) known = known || genre(j) == genre(i);
      if (!known) list.push_back(genre(i));
    }
    return list;
  }

  std::vector<Text> artists(const ui::ListBox& genres) const {
    std::vector<Text> list;
    if (genres.Selected(1))
      for (const Text& artist : table_.autori)
        for (int i = 1; i <= table_.brojfajlova(); ++i)
          if (pevac(i) == artist && genre(i).empty()) {
            list.push_back(artist);
            break;
          }
    for (int r = 2; r < genres.ListCount(); ++r) {
      if (!genres.Selected(r)) continue;
      for (int i = 1; i <= table_.brojfajlova(); ++i)
        if (genre(i) == genres.List(r)) add(list, pevac(i));
    }
    if (genres.Selected(0)) list.insert(list.end(), table_.autori.begin(), table_.autori.end());
    return list;
  }

  std::vector<Text> albums(const ui::ListBox& genres, const ui::ListBox& artists) const {
    std::vector<Text> list = {Text(base::everySongs), Text(base::withoutAlbumAndYear)};
    for (const int a : artists.selectedIndexes())
      for (const int g : genres.selectedIndexes())
        for (int i = 1; i <= table_.brojfajlova(); ++i)
          if (matches(i, genres, g, artists, a) && !base::TagAlbumYear(table_, i).empty())
            add(list, base::TagAlbumYear(table_, i));
    return list;
  }

  std::vector<int> songs(const ui::ListBox& genres, const ui::ListBox& artists,
                         const ui::ListBox& albums) const {
    std::vector<int> list;
    for (const int i : all(genres, artists)) {
      const Text album = base::TagAlbumYear(table_, i);
      bool taken = albums.Selected(0) || (albums.Selected(1) && album.empty());
      for (int k = 2; k < albums.ListCount(); ++k)
        taken = taken || (albums.Selected(k) && albums.List(k) == album);
      if (taken) list.push_back(i);
    }
    return list;
  }

  std::vector<Text> folders(const ui::ListBox& genres, const ui::ListBox& artists) const {
    std::vector<Text> list = {Text(base::everySongs)};
    for (const int i : all(genres, artists)) add(list, folder(i));
    return list;
  }

  std::vector<int> songsInFolders(const ui::ListBox& genres, const ui::ListBox& artists,
                                  const ui::ListBox& folders) const {
    std::vector<int> list;
    for (const int i : all(genres, artists)) {
      bool taken = folders.Selected(0);
      for (int k = 1; k < folders.ListCount(); ++k)
        taken = taken || (folders.Selected(k) && folders.List(k) == folder(i));
      if (taken) list.push_back(i);
    }
    return list;
  }

 private:
  static void add(std::vector<Text>& list, const Text& text) {
    if (std::ranges::find(list, text) == list.end()) list.push_back(text);
  }
  Text genre(int row) const { return Text(base::TagGenre(table_, row)); }
  const Text& pevac(int row) const { return table_.track(row).pevac.text(); }
  Text folder(int row) const {
    Text path = table_.path(row);
    path.resize(path.rfind(u'/'));
    return u"...\\" + path.substr(path.rfind(u'/') + 1) + u"\\";
  }
  bool matches(int row, const ui::ListBox& genres, int g, const ui::ListBox& artists, int a) const {
    const bool genreFits = g == 0 || (g == 1 ? genre(row).empty() : genre(row) == genres.List(g));
    return genreFits && pevac(row) == artists.List(a);
  }
  std::vector<int> all(const ui::ListBox& genres, const ui::ListBox& artists) const {
    std::vector<int> list;
    for (const int g : genres.selectedIndexes())
      for (const int a : artists.selectedIndexes())
        for (int i = 1; i <= table_.brojfajlova(); ++i)
          if (matches(i, genres, g, artists, a)) list.push_back(i);
    return list;
  }

  const core::TrackTable& table_;
};

}  // namespace velmora::test
