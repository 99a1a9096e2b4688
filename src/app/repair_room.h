#pragma once

#include "app/services.h"
#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "list/closing_step.h"
#include "names/batch_frame.h"
#include "names/name_batches.h"
#include "names/renamer.h"
#include "names/syntax_fixer.h"
#include "names/tag_batches.h"
#include "names/undo_name.h"
#include "player/hand_over.h"
#include "review/artist_book.h"
#include "review/delete_files.h"
#include "review/file_mover.h"
#include "review/name_restorer.h"
#include "review/replay.h"
#include "review/row_keeper.h"
#include "review/tag_restorer.h"
#include "review/undo_commands.h"
#include "review/undo_errors.h"
#include "review/undo_journal.h"
#include "tags/busy_file.h"
#include "tags/each_tag_writer.h"
#include "tags/field_boxes.h"
#include "tags/file_panel.h"
#include "tags/update_tags.h"
#include "ui/progress.h"
#include "ui/windows.h"

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
    list::ClosingStep& closing;
    player::FileHolder& player;
    tags::FilePanel& panel;
    tags::BusyFile& busyFile;
    tags::TagWriter& tagWriter;
    review::UndoJournal& journal;
    review::ArtistBook& artists;
  };
  explicit RepairRoom(const Ground& ground);

  // Names and tags.
  tags::FieldBoxes fields;
  tags::EachTagWriter eachTagWriter;
  names::SyntaxFixer fixer;
  names::Renamer renamer;
  names::BatchFrame frame;
  names::NameBatches nameBatches;
  names::TagBatches tagBatches;
  names::UndoName undoName;

  // Rows and files that go, and the way back.
  review::RowKeeper rows;
  review::FileMover mover;
  review::DeleteFiles deleteFiles;
  review::UndoErrors undoErrors;
  review::TagRestorer tagRestorer;
  review::NameRestorer nameRestorer;
  review::Replay replay;
  review::UndoCommands undoCommands;
};

}  // namespace velmora::app
