#include "newmusic/new_music_mirror.h"

#include "base/base_state.h"
#include "core/text.h"
#include "ui/list_scroll.h"
#include "ui/quiet_lists.h"
#include "ui/view_choice.h"

namespace velmora::newmusic {

namespace {

/// How two names are compared here.
Text compared(TextView name) {
  return core::upper(core::trim(name));
}

int findRow(const ui::ListBox& list, const Text& wanted) {
  for (int index = 0; index < list.ListCount(); ++index)
    if (compared(list.List(index)) == wanted) return index;
  return -1;
}

}  // namespace

void NewMusicMirror::showArtist(const Text& artist) {
  ui::Form3& form3 = windows_.form3;
  const Text wanted = compared(artist);
  int found = -1;
  {
    const ui::QuietLists quietly(table_);
    const Text before = base::StanjeLista(form3);
    form3.List1.clearSelection();
    for (int genre = 0; genre < form3.List1.ListCount() && found < 0; ++genre) {
      form3.List1.setSelected(genre, true);
      found = findRow(form3.List2, wanted);
      if (found < 0) form3.List1.setSelected(genre, false);
    }
    if (found < 0) base::restoreLists(form3, table_, before);
  }
  if (found < 0) return;
  form3.List2.setSelected(found, true);
  ui::ListShowRow(form3.List2, found);
}

void NewMusicMirror::showSong(int row) {
  ui::Form1& form1 = windows_.form1;
  if (ui::viewOf(form1) == ui::View::Music && row >= 1 && row <= form1.List4.ListCount())
    form1.List4.select({row - 1}, row - 1);
  ui::ListBox& titles = windows_.form3.List8;
  const int title = findRow(titles, compared(table_.track(row).pesma.text()));
  if (title < 0) return;
  const ui::QuietLists quietly(table_);
  titles.select({title}, title);
}

}  // namespace velmora::newmusic
