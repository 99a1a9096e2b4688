#pragma once

#include "app/services.h"
#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "player/preview_player.h"
#include "review/animation.h"
#include "review/review_actions.h"
#include "review/review_state.h"
#include "review/step_wait.h"
#include "ui/windows.h"

namespace velmora::app {

/// The reviews that walk the list, in the order in which they are built: each member may use those above it.
struct ReviewRoom {
  /// What the reviews stand on.
  struct Ground {
    const Services& services;
    ui::Windows& windows;
    core::TrackTable& table;
    player::PreviewPlayer& player;
    journal::UndoJournal& journal;
  };
  explicit ReviewRoom(const Ground& ground);

  review::ReviewState state;
  review::NoAnimation animation;
  review::StepWait stepWait;
  review::ReviewActions actions;
};

}  // namespace velmora::app
