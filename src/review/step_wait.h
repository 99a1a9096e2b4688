#pragma once

#include <functional>

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/desktop.h"
#include "player/preview_player.h"
#include "review/animation.h"
#include "review/review_state.h"
#include "ui/form1.h"
#include "ui/form6.h"

namespace velmora::review {

/// Whether the file at a stop needs an answer ("Dalje", go on) or may stay as it is ("Ostavi", leave).
enum class StopKind { Dalje, Ostavi };

/// The one point at which the reviews wait for the user.
class StepWait {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Desktop& desktop;
    journal::UndoJournal& journal;
    player::PreviewPlayer& player;
    Animation& animation;
    ui::Form1& form1;
    const ui::Form6& options;
    ReviewState& state;
  };
  explicit StepWait(const Parts& parts) : parts_(parts) {}

  /// Runs what it is given in a way that lets other commands run meanwhile.
  std::function<void(const std::function<void()>&)> letCommandsRun;
  /// Whether the program is about to end: no wait goes on then.
  std::function<bool()> programEnds;
  /// Raised when a stop has begun, before the wait.
  std::function<void(int row)> onStop;
  /// Asked after each event of a wait: whether the stop is over though the user answered nothing, as when the
  /// file under review was deleted.
  std::function<bool()> stopIsOver;
  /// Asked when a wait of Find Duplicates ended by acceptance: whether it is to begin again.
  std::function<bool()> waitAgain;

  /// Stops at `row` with `message` until the user answers. Returns whether a suggestion was accepted. Returns
  /// at once when the user has selected another row meanwhile. Prev., Exit From Step 3 and the program's end
  /// set `leaveReview`. In Check+Fix the stop is recorded in the journal; throws FileError when it cannot be.
  bool stepWait(int row, StopKind kind, TextView message);
  /// Shows `text` as the question with its letters flying together, for half a second at most.
  void flyInText(TextView text);

 private:
  bool inDuplicates() const;
  bool inCheckFix() const;
  bool movedOn(int row) const;
  void beginStop(int row);
  void wait(TextView message);
  bool answered() const;

  Parts parts_;
};

}  // namespace velmora::review
