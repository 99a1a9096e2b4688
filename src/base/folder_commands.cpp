#include "base/folder_commands.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "base/base_tree.h"
#include "base/busy.h"
#include "core/number_text.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "ui/list_scroll.h"
#include "ui/quiet_lists.h"

namespace velmora::base {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

namespace {

const Text renameTitle = u"Rename";
const Text deleteTitle = u"Delete";

/// Selects the rows of this text, as by one click; `all` of them or the first.
void selectText(ui::ListBox& list, TextView text, bool all) {
  std::vector<int> rows;
  for (int index = 0; index < list.ListCount() && (all || rows.empty()); ++index)
    if (list.List(index) == text) rows.push_back(index);
  if (!rows.empty()) list.select(rows, rows.back());
}

}  // namespace

bool FolderCommands::confirmed(const Text& question, const Text& title) const {
  return parts_.dialogs.message(question, title, Buttons::OkCancel, Icon::Question) == Answer::Ok;
}

bool FolderCommands::nameGiven(const Text& name) const {
  if (name.empty())
    parts_.dialogs.message(u"There's no new name.", renameTitle, Buttons::Ok, Icon::Exclamation);
  return !name.empty();
}

/// Runs a step that may fail; a failure is told. Returns whether there was none.
bool FolderCommands::reported(const Text& title, const std::function<void()>& step) const {
  try {
    step();
    return true;
  } catch (const platform::FileError& error) {
    parts_.dialogs.message(
        u"Unexpected error #" + core::plain(std::int64_t{error.number}) + u" occurred: " + error.description,
        title, Buttons::Ok, Icon::Critical);
    return false;
  }
}

/// Whether a row leads to a folder that exists. It may have gone since it was listed, and a path put together
/// from rows of equal names may lead nowhere.
bool FolderCommands::there(const Text& folder) const {
  return !folder.empty() && parts_.files.folderExists(folder);
}

/// The selected artists whose genre is selected too: of two artists of one name in two genres, a row may lead
/// to the genre that is not.
std::vector<int> FolderCommands::selectedArtists() const {
  const ui::Form3& form3 = parts_.windows.form3;
  std::vector<int> artists = form3.List2.selectedIndexes();
  std::erase_if(artists,
                [&form3](int artist) { return !form3.List1.Selected(form3.List2.ItemData(artist)); });
  return artists;
}

/// Those that are folders.
std::vector<int> FolderCommands::selectedAlbums() {
  std::vector<int> albums = form3().List3.selectedIndexes();
  std::erase_if(albums, [this](int album) { return parts_.lists.isWithoutFolder(album); });
  return albums;
}

void FolderCommands::renGenre() {
  ui::ListBox& genres = form3().List1;
  if (genres.SelCount() == 0) return;
  const Text name = folderName(form3().Combo1.text());
  if (!nameGiven(name)) return;
  if (!confirmed(u"Are you sure you want to RENAME selected folder(s) ?", renameTitle)) return;
  Renamings renamings;
  for (const int genre : genres.selectedIndexes())
    renamings.push_back({parts_.lists.genrePath(genre), parts_.lists.root() + AppendPath(name)});
  ren(genres, u"Rename ...", renamings, [&] {
    parts_.lists.IzlistajBazu();
    selectText(genres, name, false);
  });
}

void FolderCommands::renArtist() {
  ui::ListBox& artists = form3().List2;
  if (artists.SelCount() == 0) return;
  const Text name = folderName(form3().Text2.text());
  if (!nameGiven(name)) return;
  if (!confirmed(u"Are you sure you want to RENAME selected folder(s)?", renameTitle)) return;
  Renamings renamings;
  for (const int artist : selectedArtists())
    renamings.push_back({parts_.lists.artistPath(artist),
                         parts_.lists.genrePath(artists.ItemData(artist)) + AppendPath(name)});
  ren(artists, u"Rename...", renamings, [&] {
    {
      const ui::QuietLists quiet(parts_.table);
      parts_.lists.List1Click();
    }
    selectText(artists, name, false);
  });
}

void FolderCommands::renAlbum() {
  ui::ListBox& albums = form3().List3;
  if (albums.SelCount() == 0) return;
  const Text typed = form3().Text3.text();
  const Text name = folderName(typed);
  // Empty is a name here, but what is left of a bad one is not.
  if (!core::trim(typed).empty() && !nameGiven(name)) return;
  if (!confirmed(u"Are you sure you want to RENAME selected folder(s)?", renameTitle)) return;
  Renamings renamings;
  if (albums.Selected(0) && parts_.lists.isWithoutFolder(0)) {
    albums.setItemData(0, form3().List2.ListIndex());
    const Text artist = parts_.lists.albumPath(0);
    renamings.push_back({artist, artist + AppendPath(name), false});
  }
  for (const int album : selectedAlbums())
    renamings.push_back(
        {parts_.lists.albumPath(album), parts_.lists.artistPath(albums.ItemData(album)) + AppendPath(name)});
  ren(albums, u"Rename ...", renamings, [&] {
    {
      const ui::QuietLists quiet(parts_.table);
      parts_.lists.List2Click();
    }
    selectText(albums, name.empty() ? withoutFolder : TextView(name), true);
  });
}

void FolderCommands::ren(ui::ListBox& column, const Text& busyText, const Renamings& renamings,
                         const Rebuild& rebuild) {
  Renamings real;
  std::set<Text> taken;  // two rows may lead to one folder
  for (const Renaming& one : renamings)
    if (there(one.from) && one.from != one.to && taken.insert(one.from).second) real.push_back(one);
  const Busy busy(parts_.windows, parts_.progress, busyText);
  if (!moveFiles(real)) return;
  const bool removed = reported(renameTitle, [&] {
    for (const Renaming& one : real)
      if (one.wholeTree) parts_.folders.RemoveEmptyTree(one.from);
  });
  if (removed) listAnew(column, rebuild, true);
}

/// Returns false when the command has to stop.
bool FolderCommands::moveFiles(const Renamings& renamings) {
  ui::Failures failures(parts_.dialogs);
  FolderMoves work(
      {.files = parts_.files, .failures = failures, .player = parts_.player, .folders = parts_.folders});
  work.onMoving = onMoving;
  for (const Renaming& one : renamings)
    if (work.CollectRename(one.from, one.to)) return false;
  const std::size_t count = work.moves().size();
  std::size_t done = 0;
  failures.during({Text(renameTitle), u"file was not moved", u"files were not moved"}, count, [&] {
    for (const FolderMoves::Move& move : work.moves()) {
      parts_.progress.UpdateProgress(100.0 * static_cast<double>(done + 1) / static_cast<double>(count));
      if (parts_.table.Stop || work.MoveFile(move)) return;
      ++done;
    }
  });
  return done == count;
}

void FolderCommands::listAnew(ui::ListBox& column, const Rebuild& rebuild, bool selectSome) {
  const BaseLists::Unarmed unarmed(parts_.lists);
  const int top = column.TopIndex();
  rebuild();
  if (selectSome && column.SelCount() == 0) column.setSelected(0, true);
  ui::ListRestoreTop(column, top);
}

void FolderCommands::delGenre() {
  ui::ListBox& genres = form3().List1;
  if (genres.SelCount() == 0) return;
  if (!confirmed(u"Are you sure you want to DELETE selected folder(s) ?", deleteTitle)) return;
  std::vector<Text> folders;
  for (const int genre : genres.selectedIndexes()) folders.push_back(parts_.lists.genrePath(genre));
  del(genres, folders, [this] { parts_.lists.IzlistajBazu(); });
}

void FolderCommands::delArtist() {
  ui::ListBox& artists = form3().List2;
  if (artists.SelCount() == 0) return;
  if (!confirmed(u"Are you sure you want to DELETE selected folder(s)?", deleteTitle)) return;
  std::vector<Text> folders;
  for (const int artist : selectedArtists()) folders.push_back(parts_.lists.artistPath(artist));
  del(artists, folders, [this] { parts_.lists.List1Click(); });
}

void FolderCommands::delAlbum() {
  ui::ListBox& albums = form3().List3;
  if (albums.SelCount() == 0) return;
  if (!confirmed(u"Are you sure you want to DELETE selected folder(s)?", deleteTitle)) return;
  std::vector<Text> folders;
  for (const int album : selectedAlbums()) folders.push_back(parts_.lists.albumPath(album));
  if (albums.Selected(0) && parts_.lists.isWithoutFolder(0)) parts_.fileCommands.delWithoutFolder();
  if (parts_.table.Stop) return;
  del(albums, folders, [this] {
    const ui::QuietLists quiet(parts_.table);
    parts_.lists.List2Click();
  });
}

void FolderCommands::del(ui::ListBox& column, const std::vector<Text>& folders, const Rebuild& rebuild) {
  const Busy busy(parts_.windows, parts_.progress, deleteTitle + u" ...");
  std::vector<Text> files;
  const bool collected = reported(deleteTitle, [&] {
    for (const Text& folder : folders)
      if (there(folder)) std::ranges::move(parts_.trash.CollectDelete(folder), std::back_inserter(files));
  });
  if (!collected) return;
  parts_.trash.Delete(files);
  const bool removed = reported(deleteTitle, [&] {
    for (const Text& folder : folders)
      if (there(folder)) parts_.folders.RemoveEmptyTree(folder);
  });
  if (removed) listAnew(column, rebuild, false);
}

}  // namespace velmora::base
