#pragma once

#include <functional>

#include "app/base_room.h"
#include "app/base_window.h"
#include "app/events.h"
#include "app/front_window.h"
#include "app/modal_wait.h"
#include "app/new_music_window.h"
#include "app/processing_window.h"
#include "app/repair_room.h"
#include "app/review_room.h"
#include "app/services.h"
#include "app/shared_screen.h"
#include "app/table_loader.h"
#include "app/work.h"
#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "list/artist_completion.h"
#include "list/dash_finder.h"
#include "list/list_maker.h"
#include "list/list_views.h"
#include "list/other_files.h"
#include "player/preview_player.h"
#include "rows/artist_book.h"
#include "tags/busy_file.h"
#include "tags/file_panel.h"
#include "tags/tag_cache.h"
#include "tags/update_tags.h"
#include "ui/closing_step.h"
#include "ui/failures.h"
#include "ui/option_store.h"
#include "ui/progress.h"
#include "ui/tips.h"
#include "ui/windows.h"

namespace velmora::app {

/// Everything there is, in the order in which it is built: each member may use those above it.
struct House {
  House(const Services& services, Folders folders);
  House(const House&) = delete;
  House& operator=(const House&) = delete;

  Services services;
  Folders folders;
  Events events;
  std::function<void()> onEnd;
  bool loaded = false;        ///< the table was loaded, so it may be stored
  bool ending = false;        ///< the end was asked for; no wait goes on
  bool shuttingDown = false;  ///< the end is under way
  bool ended = false;

  // The model and its files.
  ui::Windows windows;
  core::TrackTable table;
  core::Settings settings;
  core::DataFolder data;

  // What the windows themselves need.
  ui::OptionStore options;
  ui::Tips tips;
  ui::Progress progress;
  Work work;
  ModalWait modal;

  // The commands.
  ui::Failures failures;
  tags::TagCache tagCache;
  tags::FilePanel panel;
  player::PreviewPlayer player;
  tags::BusyFile busyFile;
  journal::UndoJournal journal;
  tags::TagWriter tagWriter;
  rows::ArtistBook artists;
  list::DashFinder dashes;
  ui::ClosingStep closing;
  list::ListMaker listMaker;
  list::ListViews listViews;
  list::OtherFiles otherFiles;
  list::ArtistCompletion completion;
  RepairRoom repair;
  ReviewRoom reviews;
  BaseRoom baseRoom;

  // Starting, ending and changing windows.
  TableLoader loader;
  ProcessingWindow processing;
  SharedScreen screen;
  BaseWindow base;
  NewMusicWindow newMusic;
  FrontWindow front;
};

}  // namespace velmora::app
