#include "base/new_folders.h"

#include <optional>

#include "base/base_tree.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/list_scroll.h"
#include "ui/quiet_lists.h"

namespace velmora::base {

namespace {

void selectAlone(ui::ListBox& list, int index) {
  list.select({index}, index);
  ui::ListShowRow(list, index);
}

}  // namespace

bool NewFolders::haveRoot() {
  if (parts_.lists.root().empty() && onSelectRoot) {
    onSelectRoot();
    parts_.lists.readRoot();
  }
  return !parts_.lists.root().empty();
}

bool NewFolders::mayMake() {
  const bool mayAsk = parts_.table.aktivniprozor == core::WindowAtWork::MusicBase;
  return mayAsk ? haveRoot() : !parts_.lists.root().empty();
}

/// The name to make, which the box holds then; empty when there is none.
template <typename Box>
Text NewFolders::nameFrom(Box& box) {
  if (parts_.table.aktivniprozor == core::WindowAtWork::MusicBase) {
    const std::optional<Text> typed =
        parts_.dialogs.input(u"New Folder Name:", u"Create New Folder", box.text());
    if (!typed) return {};
    box.setText(*typed);
  }
  box.setText(folderName(box.text()));
  return box.text();
}

bool NewFolders::made(const Text& parent, const Text& name) {
  if (parent.empty() || name.empty()) return false;
  try {
    return !parts_.folders.PostojiDir(parent + name);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

void NewFolders::newGenre() {
  ui::ListBox& genres = parts_.form3.List1;
  if (!mayMake()) return;
  const Text name = nameFrom(parts_.form3.Combo1);
  if (made(parts_.lists.root(), name)) selectAlone(genres, genres.AddItem(name));
}

void NewFolders::newArtist() {
  ui::ListBox& artists = parts_.form3.List2;
  if (!mayMake() || parts_.form3.List5.ListCount() == 0) return;
  const int genre = parts_.form3.List1.ListIndex();
  const Text name = nameFrom(parts_.form3.Text2);
  if (!made(parts_.lists.genrePath(genre), name)) return;
  {
    const ui::QuietLists quiet(parts_.table);
    parts_.lists.List1Click();
  }
  // A year filter may leave the new folder out.
  int found = -1;
  for (int index = 0; index < artists.ListCount(); ++index) {
    if (artists.List(index) != name) continue;
    if (found < 0 || artists.ItemData(index) == genre) found = index;
  }
  if (found >= 0) selectAlone(artists, found);
}

void NewFolders::newAlbum() {
  ui::ListBox& albums = parts_.form3.List3;
  if (!mayMake() || parts_.form3.List6.ListCount() == 0) return;
  const int artist = parts_.form3.List2.ListIndex();
  const Text name = nameFrom(parts_.form3.Text3);
  if (made(parts_.lists.artistPath(artist), name)) selectAlone(albums, albums.AddItem(name, artist));
}

}  // namespace velmora::base
