#pragma once

#include <algorithm>

#include "base/move_commands.h"
#include "base/name_commands.h"
#include "base/new_music_state.h"
#include "base/new_music_undo.h"
#include "base/tag_scan.h"
#include "core/paths.h"
#include "list/quiet_lists.h"
#include "names/grammar.h"
#include "review/name_restorer.h"
#include "review/replay.h"
#include "review/tag_restorer.h"
#include "tags/busy_file.h"
#include "tests/base/base_world.h"

namespace velmora::test {

/// What the tags of a song in the table say; as if they had been read from an ID3v2 tag.
struct NewTags {
  Text genre = {};
  Text album = {};
  Text year = {};
};

/// The New Music Window beside a Music Base, and the rooms behind it, wired as the program wires them.
struct NewMusicWorld : BaseWorld {
  core::DataFolder data{files, settings, folder.path()};
  ui::Form1& form1 = windows.form1;
  ui::Form2& form2 = windows.form2;
  tags::TagCache tagCache{table, files};
  tags::FilePanel panel{table, files, tagCache, form1};
  tags::BusyFile busyFile{files, desktop, form1.statusLabel};
  review::UndoJournal undoJournal{files, settings, folder.path(u"UndoData.txt")};
  review::ArtistBook artists{table, data, form1};
  review::RowKeeper keeper{
      {.table = table, .files = files, .journal = undoJournal, .artists = artists, .form1 = form1}};
  review::FileMover fileMover{files, dialogs, player};
  review::RowMover rowMover{
      {.table = table, .files = files, .journal = undoJournal, .rows = keeper, .mover = fileMover}};
  review::UndoErrors errors{dialogs};
  review::TagRestorer tagRestorer{{.table = table,
                                   .files = files,
                                   .dialogs = dialogs,
                                   .desktop = desktop,
                                   .player = player,
                                   .busyFile = busyFile,
                                   .panel = panel,
                                   .errors = errors}};
  review::NameRestorer nameRestorer{{.table = table,
                                     .files = files,
                                     .dialogs = dialogs,
                                     .player = player,
                                     .artists = artists,
                                     .form1 = form1}};
  review::Replay replay{{.table = table,
                         .data = data,
                         .files = files,
                         .trash = trash,
                         .dialogs = dialogs,
                         .journal = undoJournal,
                         .artists = artists,
                         .rows = keeper,
                         .mover = fileMover,
                         .tagRestorer = tagRestorer,
                         .nameRestorer = nameRestorer,
                         .errors = errors,
                         .progress = progress,
                         .form1 = form1}};
  base::Folders musicFolders{{.table = table, .files = files, .journal = undoJournal}};
  base::NewFolders makers{
      {.table = table, .dialogs = dialogs, .form3 = form3, .lists = lists, .folders = musicFolders}};
  base::NewMusicMirror mirror{table, windows};
  base::MoveSummary summary{
      {.table = table, .files = files, .dialogs = dialogs, .windows = windows, .lists = lists}};
  base::NewMusicLists music{{.table = table,
                             .settings = settings,
                             .files = files,
                             .windows = windows,
                             .progress = progress,
                             .mirror = mirror,
                             .summary = summary}};
  base::NewMusicState state{{.table = table, .settings = settings, .form2 = form2, .lists = music}};
  base::TagScan scan{{.table = table,
                      .data = data,
                      .windows = windows,
                      .progress = progress,
                      .panel = panel,
                      .lists = music,
                      .summary = summary}};
  base::WindowSnapshot windowState{
      {.table = table, .settings = settings, .windows = windows, .base = lists, .lists = music}};
  base::MoveCommands moves{{.table = table,
                            .settings = settings,
                            .data = data,
                            .files = files,
                            .dialogs = dialogs,
                            .windows = windows,
                            .progress = progress,
                            .panel = panel,
                            .journal = undoJournal,
                            .artists = artists,
                            .rows = keeper,
                            .mover = rowMover,
                            .base = lists,
                            .folders = musicFolders,
                            .newFolders = makers,
                            .lists = music,
                            .summary = summary,
                            .snapshot = windowState}};
  base::NameCommands namer{{.table = table,
                            .dialogs = dialogs,
                            .windows = windows,
                            .journal = undoJournal,
                            .newFolders = makers,
                            .snapshot = windowState}};
  base::NewMusicUndo undo{{.table = table,
                           .settings = settings,
                           .windows = windows,
                           .progress = progress,
                           .journal = undoJournal,
                           .replay = replay,
                           .rows = keeper,
                           .summary = summary,
                           .snapshot = windowState}};
  int closed = 0;  ///< how often the New Music Window was asked to close

  NewMusicWorld() {
    table.aktivniprozor = 2;
    form2.List1.onClick = [this] { music.List1Click(); };
    form2.Dir1.onClick = [this] { music.Dir1Click(); };
    form2.Drive1.onChange = [this] { music.Drive1Change(); };
    form2.List2.onClick = [this] { music.List2Click(); };
    form2.List3.onClick = [this] { music.List3Click(); };
    form2.List8.onClick = [this] { music.List8Click(); };
    form2.List4.onClick = [this] { music.List4Click(); };
    form2.genreByTag.onClick = [this] { music.genresByTag(); };
    form2.genreByFolder.onClick = [this] { music.genresByFolder(); };
    form2.albumByTag.onClick = [this] { music.albumsByTag(); };
    form2.albumByFolder.onClick = [this] { music.albumsByFolder(); };
    artists.onAdded = [this](const Text& artist) { music.artistAdded(artist); };
    artists.onRemoved = [this](const Text& artist) { music.artistRemoved(artist); };
    undoJournal.onMarker = [this](std::string_view) { undo.showState(); };
    replay.onWindowState = [this](const Text& snapshot) { undo.windowState(snapshot); };
    summary.onAllMoved = [this] { ++closed; };
    settings.set(u"novidir", folder.path(u"new"));
    undo.showState();
  }

  /// A row for a file of this path, whether it is there or not.
  int addRow(const Text& path, const NewTags& tags) {
    table.appendPath(path);
    table.resizeColumns();
    const int row = table.rows();
    table.setBrojfajlova(row);
    names::setDash(table, row, names::dashAfterRename(core::paths::bareName(path), {}));
    core::Track& track = table.track(row);
    track.procitan = true;
    track.imaid3v2 = true;
    track.vrstaid3v2 = tags.genre;
    track.albumid3v2 = tags.album;
    track.godinaid3v2 = tags.year;
    form1.List4.AddItem(path);
    const Text& artist = track.pevac.text();
    if (std::ranges::find(table.autori, artist) == table.autori.end()) table.autori.push_back(artist);
    return row;
  }
  /// A song of new music, on the disk and in the table; its content is its name.
  Text song(TextView name, const NewTags& tags = {}) {
    const Text path = folder.write(u"new/" + Text(name) + u".mp3", core::toBytes(name));
    addRow(path, tags);
    table.velicinasfiles += static_cast<double>(disk.size(path));
    return path;
  }
  /// Both windows list what there is.
  void openBoth() {
    lists.IzlistajBazu();
    const list::QuietLists quietly(table);
    music.IzlistajVrste();
  }
  /// Kinds of the journal's records, oldest first.
  Names kinds() const {
    Names kinds;
    for (const Text& record : undoJournal.readRecords()) kinds.push_back(core::toBytes(record.substr(0, 3)));
    return kinds;
  }
};

}  // namespace velmora::test
