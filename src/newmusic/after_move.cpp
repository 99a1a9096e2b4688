#include "newmusic/after_move.h"

#include <algorithm>
#include <unordered_set>

#include "core/text.h"
#include "ui/list_scroll.h"
#include "ui/quiet_lists.h"

namespace velmora::newmusic {

namespace {

/// Selects the rows whose trimmed text is one of these; `shown`, or else the last of them, comes into sight.
/// Returns whether there was one.
bool selectTexts(ui::ListBox& list, const std::vector<Text>& texts, TextView shown = {}) {
  std::unordered_set<TextView> wanted;
  for (const Text& text : texts) wanted.insert(core::trim(text));
  std::vector<int> indexes;
  int inSight = -1;
  for (int index = 0; index < list.ListCount(); ++index) {
    const TextView text = core::trim(list.List(index));
    if (!wanted.contains(text)) continue;
    indexes.push_back(index);
    if (inSight < 0 || core::trim(list.List(inSight)) != core::trim(shown)) inSight = index;
  }
  if (indexes.empty()) return false;
  list.select(indexes, inSight);
  ui::ListShowRow(list, inSight);
  return true;
}

/// Selects the row that has the number now, or the last one; nothing for a number that was no row's.
void selectNear(ui::ListBox& list, int index) {
  if (index < 0 || list.ListCount() == 0) return;
  const int row = std::min(index, list.ListCount() - 1);
  selectOnly(list, row);
  ui::ListShowRow(list, row);
}

}  // namespace

AfterMove::AfterMove(const Parts& parts)
    : parts_(parts),
      genres_(selectedTexts(parts.windows.form3.List1)),
      artists_(selectedTexts(parts.windows.form3.List2)),
      albums_(selectedTexts(parts.windows.form3.List3)),
      genre_(parts.windows.form2.List1.ListIndex()),
      artist_(parts.windows.form2.List2.ListIndex()),
      album_(parts.windows.form2.List3.ListIndex()),
      folder_(parts.windows.form2.List8.ListIndex()),
      newArtists_(selectedTexts(parts.windows.form2.List2)) {}

void AfterMove::restore(MoveColumn column, TextView target) {
  {
    const ui::QuietLists quietly(parts_.table);
    restoreNewMusic();
    restoreBase(column, target);
  }
  // Under `puniliste` the albums list no titles.
  parts_.base.List3Click();
}

void AfterMove::restoreNewMusic() {
  ui::Form2& form2 = parts_.windows.form2;
  parts_.lists.IzlistajVrste();
  form2.List3.Clear();
  form2.List8.Clear();
  if (form2.genreByTag.chosen())
    selectNear(form2.List1, genre_);
  else
    parts_.lists.showFolder(Text(form2.Dir1.path()));
  if (!selectTexts(form2.List2, newArtists_)) selectNear(form2.List2, artist_);
  if (form2.albumByTag.chosen())
    selectNear(form2.List3, album_);
  else
    selectNear(form2.List8, folder_);
}

void AfterMove::restoreBase(MoveColumn column, TextView target) {
  ui::Form3& form3 = parts_.windows.form3;
  if (column == MoveColumn::Genre) {
    parts_.base.IzlistajBazu();
    std::vector<Text> genres = genres_;
    genres.emplace_back(target);
    selectTexts(form3.List1, genres, target);
    selectTexts(form3.List2, artists_);
  } else if (column == MoveColumn::Artist) {
    parts_.base.List1Click();
    selectTexts(form3.List2, {Text(target)});
  } else {
    parts_.base.List2Click();
  }
  const bool intoAlbum = column == MoveColumn::Album;
  selectTexts(form3.List3, intoAlbum ? std::vector{Text(target)} : albums_);
}

}  // namespace velmora::newmusic
