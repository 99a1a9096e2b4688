#include "list/artist_completion.h"

#include <utility>

#include "core/text.h"
#include "ui/quiet_lists.h"

namespace velmora::list {

namespace {

void addMatches(std::vector<Text>& matches, const std::vector<Text>& artists, TextView typed) {
  for (const Text& artist : artists)
    if (core::startsWithNoCase(core::trim(artist), typed)) matches.push_back(artist);
}

}  // namespace

void ArtistCompletion::boxChanged() {
  if (quiet() || form1_.List4.ListCount() == 0 || table_.vrsta == core::Review::WhoIsArtist) return;
  const ui::QuietLists quietly(table_);
  closeOffer();
  const TextView typed = core::trim(core::left(box().text(), box().cursor()));
  if (typed.empty()) return;
  std::vector<Text> matches;
  addMatches(matches, table_.autori, typed);
  if (table_.stariautori.size() >= 2) addMatches(matches, table_.stariautori, typed);
  if (matches.empty()) return;
  form1_.List3.fill(std::move(matches));
  form1_.List3.setVisible(true);
  form1_.List5.setVisible(false);
}

void ArtistCompletion::List3Click() {
  const int index = form1_.List3.ListIndex();
  if (quiet() || !form1_.List3.Selected(index)) return;
  Text text(core::trim(form1_.List3.List(index)));
  if (!artistListView()) text.append(u" - ").append(core::trim(table_.track(table_.currentRow).pesma.text()));
  const ui::QuietLists quietly(table_);
  box().setText(text);
  closeOffer();
}

bool ArtistCompletion::nameBoxKey(ui::KeyPress press) {
  if (quiet() || (press.key != ui::Key::Up && press.key != ui::Key::Down)) return false;
  if (!form1_.List3.visible()) return playNeighbour(press.key == ui::Key::Up ? -1 : 1);
  if (press.key == ui::Key::Down || form1_.List3.ListCount() == 0) return false;
  form1_.List3.setListIndex(0);
  return true;
}

bool ArtistCompletion::playNeighbour(int step) {
  ui::ListBox& list = form1_.List4;
  const int target = list.ListIndex() + step;
  if (target < 0 || target >= list.ListCount()) return false;
  list.select({target}, target);
  list.doubleClick();
  return true;
}

void ArtistCompletion::closeOffer() {
  form1_.List3.Clear();
  form1_.List3.setVisible(false);
}

}  // namespace velmora::list
