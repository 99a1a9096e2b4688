#pragma once

#include "app/repair_room.h"
#include "app/services.h"
#include "base/base_lists.h"
#include "base/file_commands.h"
#include "base/folder_commands.h"
#include "base/folders.h"
#include "base/last_position.h"
#include "base/move_commands.h"
#include "base/move_summary.h"
#include "base/name_commands.h"
#include "base/new_folders.h"
#include "base/new_music_lists.h"
#include "base/new_music_mirror.h"
#include "base/new_music_state.h"
#include "base/new_music_undo.h"
#include "base/tag_scan.h"
#include "base/trash_files.h"
#include "base/window_snapshot.h"
#include "base/year_filter.h"
#include "review/row_mover.h"

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
    player::FileHolder& player;
    tags::FilePanel& panel;
    review::UndoJournal& journal;
    review::ArtistBook& artists;
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
  base::MoveSummary summary;
  base::NewMusicMirror mirror;
  base::NewMusicLists newMusic;
  base::NewMusicState state;
  base::TagScan tagScan;

  // The road from the one to the other, and back.
  base::WindowSnapshot snapshot;
  review::RowMover rowMover;
  base::MoveCommands moves;
  base::NameCommands names;
  base::NewMusicUndo undo;
};

}  // namespace velmora::app
