#include "list/list_views.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "list/file_sizes.h"
#include "list/other_rows.h"
#include "names/grammar.h"
#include "ui/display_limit.h"
#include "ui/quiet_lists.h"
#include "ui/view_choice.h"

namespace velmora::list {

namespace {

/// The row that was clicked, where it is selected, else the first selected one; -1 without a selection.
int selectedIndex(const ui::ListBox& list) {
  if (list.SelCount() == 0) return -1;
  return list.Selected(list.ListIndex()) ? list.ListIndex() : list.selectedIndexes().front();
}

}  // namespace

void ListViews::showMusicFiles() {
  if (busy()) return;
  parts_.closing.run([this] {
    const core::TrackTable& table = parts_.table;
    parts_.progress.show(u"Make List ...");
    ui::enterView(parts_.windows.form1, ui::View::Music);
    const int rows = ui::shownRows(table.workingRows());
    std::vector<Text> paths;
    for (int row = 1; row <= rows; ++row) {
      paths.push_back(table.path(row));
      parts_.progress.UpdateProgress(100.0 * row / rows);
    }
    parts_.windows.form1.List4.fill(std::move(paths));
  });
}

void ListViews::showOtherFiles() {
  if (busy()) return;
  parts_.closing.run([this] {
    const core::TrackTable& table = parts_.table;
    parts_.progress.show(u"Make List ...");
    ui::enterView(parts_.windows.form1, ui::View::Other);
    parts_.data.writeList(u"niznomusic.txt", table.niznomusic);
    if (ui::overLimit(static_cast<int>(table.niznomusic.size())))
      parts_.dialogs.message(
          u"To many files. Can display only 32737 files on list. When process these files, make list again "
          u"to display other files.",
          u"Make List", platform::Buttons::Ok, platform::Icon::Information);
    listOtherFiles(table, parts_.files, parts_.progress, parts_.windows.form1);
  });
  folderTreeClick();
}

void ListViews::folderTreeClick() {
  if (busy()) return;
  ui::Form1& form1 = parts_.windows.form1;
  const Text& folder = form1.folderTree.path();
  const auto holdsFolder = [&folder](const Text& path) { return core::paths::within(path, folder); };
  if (folder.empty() || std::ranges::none_of(parts_.table.bazepesama, holdsFolder)) return;
  for (int index = 0; index < form1.List4.ListCount(); ++index)
    if (holdsFolder(form1.List4.List(index))) return form1.List4.setTopIndex(index);
}

void ListViews::List4Click() {
  ui::Form1& form1 = parts_.windows.form1;
  if (quiet() || ui::viewOf(form1) == ui::View::Other) return;
  const int index = selectedIndex(form1.List4);
  if (index < 0) return;
  const int row = index + 1;
  const core::Review vrsta = parts_.table.vrsta;
  // The name box changes without the user typing: there is nothing to complete.
  const ui::QuietLists quietly(parts_.table);
  form1.List3.Clear();
  form1.List3.setVisible(false);
  if (vrsta == core::Review::CheckFix || vrsta == core::Review::Duplicates ||
      vrsta == core::Review::WhoIsArtist || vrsta == core::Review::ArtistExists) {
    form1.Text1.setText(names::ImeFajla(parts_.table, row));
    return;
  }
  parts_.panel.info(form1.List4.List(index), row);
  parts_.panel.showName(row);
}

void ListViews::List1Click() {
  if (quiet() || parts_.table.vrsta != core::Review::ArtistList) return;
  ui::Form1& form1 = parts_.windows.form1;
  std::vector<Text> artists;
  for (const int index : form1.List1.selectedIndexes()) artists.push_back(form1.List1.List(index));
  form1.List5.fill(std::move(artists));
  showSongs();
}

/// Songs of the artists in List5, artist by artist, each with all its rows in their order.
void ListViews::showSongs() {
  const core::TrackTable& table = parts_.table;
  ui::Form1& form1 = parts_.windows.form1;
  std::unordered_map<TextView, std::vector<int>> rowsOf;
  for (int index = 0; index < form1.List5.ListCount(); ++index) rowsOf[form1.List5.List(index)];
  for (int row = 1; row <= table.rows() && !rowsOf.empty(); ++row)
    if (const auto found = rowsOf.find(table.track(row).pevac.text()); found != rowsOf.end())
      found->second.push_back(row);
  std::unordered_set<TextView> old;
  for (const Text& artist : table.stariautori) old.insert(core::trim(artist));

  form1.List2.Clear();
  form1.List8.Clear();
  double bytes = 0;
  for (int index = 0; index < form1.List5.ListCount(); ++index) {
    const Text& artist = form1.List5.List(index);
    const Text kind = old.contains(core::trim(artist)) ? u"OLD" : u"NEW";
    for (const int row : rowsOf[artist]) {
      form1.List2.AddItem(table.track(row).pesma.text(), row);
      form1.List8.AddItem(kind);
      bytes += bytesOf(parts_.files, table.path(row));
    }
  }
  form1.countLabel.setText(u"Songs: " + core::plain(std::int64_t{form1.List2.ListCount()}));
  form1.sizeLabel.setText(core::sizeText(bytes));
}

}  // namespace velmora::list
