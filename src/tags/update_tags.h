#pragma once

#include <functional>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "tags/busy_file.h"
#include "tags/file_panel.h"
#include "tags/open_song.h"
#include "tags/update_result.h"
#include "ui/form1.h"

namespace velmora::tags {

/// Writes the tag boxes of the panel to the tags of the current row.
class TagWriter {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    platform::Desktop& desktop;
    platform::FileHolder& player;
    BusyFile& busyFile;
    FilePanel& panel;
    ui::Form1& form1;
  };
  explicit TagWriter(const Parts& parts) : parts_(parts) {}

  /// Raised after the tags were written, with the snapshot of the row taken before: the undo record "id3".
  std::function<void(int row, const Text& rowSnapshot)> onWritten;

  /// Which tags are written follows from the check boxes. Only a path that ends in MP3 gets any. Waits while
  /// another program holds the file. Abort and Ignore in the dialog of a failure both end it for this row,
  /// with no undo record.
  void UpdateTags();
  /// The same for the song of the current row, which may be open already, as after `FilePanel::info` of it.
  void UpdateTags(OpenSong& song);

 private:
  bool writeTags(OpenSong& song, int row, bool released);
  bool writeID3v1(OpenSong& song, int row);
  bool writeID3v2(OpenSong& song, int row);
  void showNewID3v2(int row);
  /// Number in the track box, which ends empty when that is 0.
  double takeTrack();
  void showAgain(OpenSong& song, int row);

  Parts parts_;
};

}  // namespace velmora::tags
