#pragma once

#include "core/settings.h"
#include "core/track_table.h"
#include "newmusic/new_music_lists.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// What the New Music Window showed when it was closed, from one opening to the next.
class NewMusicState {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    ui::Form2& form2;
    NewMusicLists& lists;
  };
  explicit NewMusicState(const Parts& parts) : parts_(parts) {}

  /// Options, selected rows and top rows as the settings keep them, in ten fields, each ended by ":".
  Text stateText() const;
  /// Stores the text under `stanje2`, and the folder of a genre column that goes by folder under `form2dis`.
  void store();
  /// Puts back what such a text tells, each column filled by the selection before it. The genres must have
  /// been listed. A row number past the end of its list is passed over.
  void restore(TextView state);

 private:
  void restoreOptions(int albumsByTag, int genresByTag);

  Parts parts_;
};

}  // namespace velmora::newmusic
