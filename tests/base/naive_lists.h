#pragma once

#include <algorithm>
#include <functional>

#include "base/new_music_rows.h"
#include "base/tag_values.h"
#include "core/paths.h"
#include "ui/form2.h"

namespace velmora::test {

/// What the lists of the New Music Window must hold, told by plain walks over all rows.
struct NaiveLists {
  using Texts = std::vector<Text>;

  const core::TrackTable& table;
  const ui::Form2& form2;

  Texts genres() const {
    Texts list = {Text(base::everyAutor), Text(base::withoutGenree)};
    for (int i = 1; i <= table.brojfajlova(); ++i)
      if (!genre(i).empty()) add(list, genre(i));
    return list;
  }
  Texts artists() const {
    Texts list;
    if (form2.List1.Selected(1))
      for (const Text& artist : table.autori)
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (pevac(i) == artist && genre(i).empty()) add(list, artist);
    for (const int g : form2.List1.selectedIndexes())
      for (int i = 1; g > 1 && i <= table.brojfajlova(); ++i)
        if (genre(i) == form2.List1.List(g)) add(list, pevac(i));
    if (form2.List1.Selected(0)) list.insert(list.end(), table.autori.begin(), table.autori.end());
    return list;
  }
  Texts albums() const {
    Texts list = {Text(base::everySongs), Text(base::withoutAlbumAndYear)};
    for (const int a : form2.List2.selectedIndexes())
      for (const int g : form2.List1.selectedIndexes())
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (matches(i, g, a) && !album(i).empty()) add(list, album(i));
    return list;
  }
  Texts folders() const {
    Texts list = {Text(base::everySongs)};
    for (const int i : songs([](int) { return true; })) add(list, folder(i));
    return list;
  }
  std::vector<int> songsOfAlbums() const {
    const ui::ListBox& albums = form2.List3;
    return songs(
        [&](int i) { return (albums.Selected(1) && album(i).empty()) || chosen(albums, 2, album(i)); });
  }
  std::vector<int> songsOfFolders() const {
    return songs([&](int i) { return chosen(form2.List8, 1, folder(i)); });
  }

 private:
  static void add(Texts& list, const Text& text) {
    if (std::ranges::find(list, text) == list.end()) list.push_back(text);
  }
  Text genre(int row) const { return Text(base::TagGenre(table, row)); }
  Text album(int row) const { return base::TagAlbumYear(table, row); }
  const Text& pevac(int row) const { return table.track(row).pevac.text(); }
  Text folder(int row) const {
    Text path = table.path(row);
    path.resize(path.rfind(u'/'));
    return u"...\\" + Text(core::paths::fileName(path)) + u"\\";
  }
  bool matches(int row, int g, int a) const {
    const bool fits = g == 0 || (g == 1 ? genre(row).empty() : genre(row) == form2.List1.List(g));
    return fits && pevac(row) == form2.List2.List(a);
  }
  /// Whether the row for all, or that of `text` from row `from` on, is selected.
  static bool chosen(const ui::ListBox& list, int from, const Text& text) {
    return std::ranges::any_of(list.selectedIndexes(),
                               [&](int k) { return k == 0 || (k >= from && list.List(k) == text); });
  }
  std::vector<int> songs(const std::function<bool(int)>& taken) const {
    std::vector<int> list;
    for (const int g : form2.List1.selectedIndexes())
      for (const int a : form2.List2.selectedIndexes())
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (matches(i, g, a) && taken(i)) list.push_back(i);
    return list;
  }
};

}  // namespace velmora::test
