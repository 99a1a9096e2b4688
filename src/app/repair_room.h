#pragma once

#include "app/services.h"
#include "batch/batch_frame.h"
#include "batch/name_batches.h"
#include "batch/renamer.h"
#include "batch/tag_batches.h"
#include "batch/undo_name.h"
#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "list/delete_files.h"
#include "names/syntax_fixer.h"
#include "platform/hand_over.h"
#include "rows/artist_book.h"
#include "rows/file_mover.h"
#include "rows/row_keeper.h"
#include "tags/busy_file.h"
#include "tags/field_boxes.h"
#include "tags/file_panel.h"
#include "tags/tag_cache.h"
#include "tags/update_tags.h"
#include "ui/closing_step.h"
#include "ui/failures.h"
#include "ui/progress.h"
#include "ui/windows.h"
#include "undo/file_restorer.h"
#include "undo/name_restorer.h"
#include "undo/replay.h"
#include "undo/songs.h"
#include "undo/tag_restorer.h"
#include "undo/undo_commands.h"
#include "undo/undo_errors.h"

namespace velmora::app {

/// The commands that change names and tags, delete, and take every change back, in the order in which they
/// are built: each member may use those above it.
struct RepairRoom {
  /// What these commands stand on.
  struct Ground {
    const Services& services;
    ui::Windows& windows;
    core::TrackTable& table;
    core::Settings& settings;
    core::DataFolder& data;
    ui::Progress& progress;
    ui::ClosingStep& closing;
    platform::FileHolder& player;
    ui::Failures& failures;
    tags::TagCache& tagCache;
    tags::FilePanel& panel;
    tags::BusyFile& busyFile;
    tags::TagWriter& tagWriter;
    journal::UndoJournal& journal;
    rows::ArtistBook& artists;
  };
  explicit RepairRoom(const Ground& ground);

  // Names and tags.
  tags::FieldBoxes fields;
  names::SyntaxFixer fixer;
  batch::Renamer renamer;
  batch::BatchFrame frame;
  batch::NameBatches nameBatches;
  batch::TagBatches tagBatches;
  batch::UndoName undoName;

  // Rows and files that go, and the way back.
  rows::RowKeeper rows;
  rows::FileMover mover;
  list::DeleteFiles deleteFiles;
  undo::UndoErrors undoErrors;
  undo::Songs songs;
  undo::FileRestorer fileRestorer;
  undo::TagRestorer tagRestorer;
  undo::NameRestorer nameRestorer;
  undo::Replay replay;
  undo::UndoCommands undoCommands;
};

}  // namespace velmora::app
