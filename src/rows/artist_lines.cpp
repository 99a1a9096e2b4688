#include "rows/artist_lines.h"

#include "core/text.h"

namespace velmora::rows::artist_lines {

const Text newKind = u"NEW";
const Text oldKind = u"OLD";
const Text bothKind = u"N&O";

int find(const ui::ListBox& List1, const Text& artist) {
  // The list is sorted without regard to case, so spellings that differ in capitals are neighbours.
  const Text wanted = core::upper(artist);
  const auto capitals = [&List1](int index) { return core::upper(List1.List(index)); };
  int first = 0;
  for (int end = List1.ListCount(); first < end;) {
    const int middle = first + (end - first) / 2;
    if (capitals(middle) < wanted) {
      first = middle + 1;
    } else {
      end = middle;
    }
  }
  for (int i = first; i < List1.ListCount() && capitals(i) == wanted; ++i)
    if (List1.List(i) == artist) return i;
  return -1;
}

int add(ui::Form1& form1, const Text& artist) {
  const int index = form1.List1.AddItem(artist);
  form1.List7.insertItem(index, oldKind);
  return index;
}

void setKind(ui::Form1& form1, int index, const Text& kind) {
  form1.List7.setList(index, kind);
  form1.List7.setSelected(index, kind != oldKind);
}

int gained(ui::Form1& form1, const core::TrackTable& table, const Text& artist) {
  const core::TrackTable::ArtistRows rows = table.artistRows(artist);
  const int index = find(form1.List1, artist);
  if (index < 0) {
    const int added = add(form1, artist);
    if (rows.working > 0) setKind(form1, added, rows.tail > 0 ? bothKind : newKind);
    return added;
  }
  const Text& kind = form1.List7.List(index);
  if ((kind == newKind && rows.tail > 0) || (kind == oldKind && rows.working > 0))
    setKind(form1, index, bothKind);
  return index;
}

void lost(ui::Form1& form1, const core::TrackTable& table, const Text& artist) {
  const int index = find(form1.List1, artist);
  if (index < 0) return;
  const core::TrackTable::ArtistRows rows = table.artistRows(artist);
  if (rows.working == 0 && rows.tail == 0) {
    form1.List1.RemoveItem(index);
    form1.List7.RemoveItem(index);
  } else if (form1.List7.List(index) == bothKind && (rows.working == 0 || rows.tail == 0)) {
    setKind(form1, index, rows.working == 0 ? oldKind : newKind);
  }
}

}  // namespace velmora::rows::artist_lines
