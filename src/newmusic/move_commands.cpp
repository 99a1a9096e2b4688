#include "newmusic/move_commands.h"

#include <algorithm>
#include <utility>

#include "base/active_window.h"
#include "base/base_tree.h"
#include "base/busy.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "list/file_sizes.h"
#include "newmusic/move_names.h"
#include "newmusic/music_undo_group.h"
#include "newmusic/tag_scan.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "ui/quiet_lists.h"

namespace velmora::newmusic {

namespace {

const Text preparing = u"Preparing to move ...";
const Text moving = u"Moving ...";

/// The one selected row; the caller knows that there is just one.
int selectedIndex(const ui::ListBox& list) {
  return list.selectedIndexes().front();
}

/// The row that was clicked last where it is selected, else the first selected one; -1 without a selection.
int clickedIndex(const ui::ListBox& list) {
  if (list.SelCount() == 0) return -1;
  return list.Selected(list.ListIndex()) ? list.ListIndex() : list.selectedIndexes().front();
}

}  // namespace

void MoveCommands::refuse(const Text& text) {
  parts_.dialogs.message(text, u"Move", platform::Buttons::Ok, platform::Icon::Exclamation);
}

void MoveCommands::moveGenre() {
  const bool chosen = form2_.genreByTag.chosen() ? form2_.List1.SelCount() > 0 : form2_.List2.ListCount() > 0;
  if (!chosen || !parts_.newFolders.haveRoot()) return;
  run(MoveColumn::Genre, preparing, [this](MoveCollect& collect) { return planGenres(collect); });
}

Text MoveCommands::planGenres(MoveCollect& collect) const {
  const Text& root = parts_.base.root();
  if (form2_.genreByFolder.chosen()) {
    const Text genre = parts_.lists.folderGenre();
    collect.folderOfMusic(root + pathLevel(genre));
    return genre;
  }
  collect.genres(parts_.lists.chosenGenres(), root);
  const int clicked = clickedIndex(form2_.List1);
  return genreFolder({clicked, form2_.List1.List(clicked)});
}

void MoveCommands::moveArtist() {
  if (form2_.List2.SelCount() == 0) return;
  if (form3_.List1.SelCount() != 1) return refuse(u"Select only ONE item in genre list from Base.");
  run(MoveColumn::Artist, preparing, [this](MoveCollect& collect) {
    collect.artists(parts_.lists.chosenGenres(), parts_.base.genrePath(selectedIndex(form3_.List1)));
    return artistFolder(form2_.List2.List(clickedIndex(form2_.List2)));
  });
}

void MoveCommands::moveAlbum() {
  const bool byTag = form2_.albumByTag.chosen();
  const ui::ListBox& albums = byTag ? form2_.List3 : form2_.List8;
  if (albums.SelCount() == 0) return;
  if (form3_.List1.SelCount() != 1 || form3_.List2.SelCount() != 1)
    return refuse(u"Select only ONE item in genre and artist List from Base.");
  run(MoveColumn::Album, moving, [this, byTag, &albums](MoveCollect& collect) {
    collect.albums(parts_.lists.chosenGenres(), parts_.base.artistPath(selectedIndex(form3_.List2)));
    const int clicked = clickedIndex(albums);
    const Text& row = albums.List(clicked);
    const Text name = byTag ? albumFolder(clicked, row) : albumFolderOfFolder(clicked, row);
    return name.empty() ? Text(base::withoutFolder) : name;
  });
}

void MoveCommands::moveTitle() {
  if (form2_.List4.SelCount() == 0) return;
  for (const ui::ListBox* list : {&form3_.List1, &form3_.List2, &form3_.List3})
    if (list->SelCount() != 1) return refuse(u"Select One Item From Genre, Artist and Album List In Base.");
  run(MoveColumn::Title, moving, [this](MoveCollect& collect) {
    const int album = selectedIndex(form3_.List3);
    collect.titles(parts_.base.isWithoutFolder(album) ? parts_.base.artistPath(selectedIndex(form3_.List2))
                                                      : parts_.base.albumPath(album));
    return Text();
  });
}

/// A row that was not read yet says nothing of its genre and album, and must not be filed by that. False when
/// the reading was stopped.
bool MoveCommands::tagsRead(MoveColumn column) {
  const core::TrackTable& table = parts_.table;
  const bool byTag = form2_.genreByTag.chosen() || form2_.albumByTag.chosen();
  int row = 1;
  while (row <= table.workingRows() && table.track(row).procitan.isTrue()) ++row;
  if (column == MoveColumn::Title || !byTag || row > table.workingRows()) return true;
  {
    const base::Busy busy(parts_.windows, parts_.progress, preparing);
    readUnreadRows(parts_.table, parts_.panel, parts_.progress);
  }
  if (parts_.table.Stop) parts_.summary.moze();
  return !parts_.table.Stop;
}

void MoveCommands::run(MoveColumn column, const Text& caption,
                       const std::function<Text(MoveCollect&)>& plan) {
  if (!tagsRead(column)) return;
  {
    const base::ActiveWindow atWork(parts_.table, core::WindowAtWork::NewMusic);
    const base::Busy busy(parts_.windows, parts_.progress, caption);
    auto group = openMusicUndoGroup(parts_.journal, parts_.snapshot);
    parts_.data.beginChange();
    AfterMove after({parts_.table, parts_.windows, parts_.base, parts_.lists});
    Text target;
    std::vector<PlannedMoves> moves;
    try {
      const ui::QuietLists quietly(parts_.table);
      MoveCollect collect(parts_.table, form2_, parts_.folders);
      target = plan(collect);
      moves = collect.take();
    } catch (const journal::NotRecorded&) {
      // A folder could not be journalled, so nothing moves.
    }
    parts_.progress.setText(moving);
    // Artists that leave the list are looked for here; all is listed anew in the end.
    form2_.List2.Clear();
    apply(moves, group);
    after.restore(column, target);
  }
  parts_.summary.moze();
}

void MoveCommands::apply(const std::vector<PlannedMoves>& plan, journal::UndoJournal::Group& group) {
  double bytes = 0;
  try {
    const rows::ArtistBook::Batch artists(parts_.artists);
    const rows::RowKeeper::Batch rows(parts_.rows);
    moveAll(plan, bytes);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // Nothing more goes when it cannot be journalled.
  }
  group.end();
  core::TrackTable& table = parts_.table;
  table.velicinasfiles = std::max(0.0, table.velicinasfiles - bytes);
  parts_.settings.set(u"velicinasfiles", core::number(table.velicinasfiles));
  if (table.currentRow == 0) parts_.panel.clear();
  parts_.data.savenizove(table);
  parts_.data.SaveID3nizove(table);
}

void MoveCommands::moveAll(const std::vector<PlannedMoves>& plan, double& bytes) {
  core::TrackTable& table = parts_.table;
  rows::RemovedRows removed(table.rows());
  std::size_t count = 0;
  for (const PlannedMoves& moves : plan) count += moves.rows.size();
  double done = 0;
  for (const PlannedMoves& moves : plan) {
    for (const int planned : moves.rows) {
      parts_.progress.UpdateProgress(++done / static_cast<double>(count) * 100);
      if (table.Stop) return;
      const int rows = table.rows();
      const int row = removed.now(planned);
      const Text from = table.path(row);
      const double size = list::bytesOf(parts_.files, from);
      const Text to = moves.folder + Text(core::paths::fileName(from));
      if (parts_.mover.moveFile(from, to, row) == rows::MoveResult::Abort) return;
      if (table.rows() == rows) continue;
      removed.remove(planned);
      bytes += size;
    }
  }
}

}  // namespace velmora::newmusic
