#pragma once

#include "app/repair_room.h"
#include "app/services.h"
#include "base/base_lists.h"
#include "base/file_commands.h"
#include "base/folder_commands.h"
#include "base/folders.h"
#include "base/last_position.h"
#include "base/new_folders.h"
#include "base/trash_files.h"
#include "base/year_filter.h"
#include "newmusic/move_commands.h"
#include "newmusic/move_summary.h"
#include "newmusic/name_commands.h"
#include "newmusic/new_music_lists.h"
#include "newmusic/new_music_mirror.h"
#include "newmusic/new_music_state.h"
#include "newmusic/new_music_undo.h"
#include "newmusic/tag_scan.h"
#include "newmusic/window_snapshot.h"
#include "rows/row_mover.h"

namespace velmora::app {

/// The Music Base and the road into it, in the order in which the commands are built: each member may use
/// those above it.
struct BaseRoom {
  /// What these commands stand on.
  struct Ground {
    const Services& services;
    const Folders& folders;
    ui::Windows& windows;
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    ui::Progress& progress;
    platform::FileHolder& player;
    tags::FilePanel& panel;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
    RepairRoom& repair;
  };
  explicit BaseRoom(const Ground& ground);

  // The base as the disk has it.
  base::LastPosition positions;
  base::YearFilter years;
  base::BaseLists lists;
  base::Folders folders;
  base::NewFolders newFolders;
  base::TrashFiles trash;
  base::FileCommands fileCommands;
  base::FolderCommands folderCommands;

  // The new music.
  newmusic::MoveSummary summary;
  newmusic::NewMusicMirror mirror;
  newmusic::NewMusicLists newMusic;
  newmusic::NewMusicState state;
  newmusic::TagScan tagScan;

  // The road from the one to the other, and back.
  newmusic::WindowSnapshot snapshot;
  rows::RowMover rowMover;
  newmusic::MoveCommands moves;
  newmusic::NameCommands names;
  newmusic::NewMusicUndo undo;
};

}  // namespace velmora::app
