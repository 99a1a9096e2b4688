#pragma once

#include "core/track_table.h"
#include "journal/undo_journal.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "tags/busy_file.h"
#include "tags/field_values.h"
#include "tags/file_panel.h"
#include "tags/open_song.h"
#include "tags/tag_cache.h"
#include "tags/update_result.h"
#include "ui/failures.h"
#include "ui/form1.h"

namespace velmora::tags {

/// The one way in which a command changes the tags of a song on the list.
class TagWriter {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Desktop& desktop;
    platform::FileHolder& player;
    journal::UndoJournal& journal;
    ui::Failures& failures;
    BusyFile& busyFile;
    TagCache& cache;
    FilePanel& panel;
    ui::Form1& form1;
  };
  explicit TagWriter(const Parts& parts) : parts_(parts) {}

  /// Writes what was changed in the tag boxes of the panel to the tags of the current row that are ticked,
  /// and shows the row again.
  UpdateResult UpdateTags();

  /// Puts values into the tags asked for of the song of `row`, which becomes the current row; its columns
  /// are read from the file before and after. A tag that says them already is not written. A tag that is not
  /// there is made, with the values of the other one where `values` has none, unless all of them are blank.
  /// The undo record "id3" stands in the journal before the first byte changes; throws journal::NotRecorded,
  /// and the song is then as it was. Waits while another program holds the song. Ignore is also the result
  /// for a path that gets no tags, as only one that ends in MP3 does.
  UpdateResult write(OpenSong& song, int row, const FieldValues& values, WhichTags which);

 private:
  struct Change;
  bool makeReady(OpenSong& song, bool released);
  UpdateResult read(OpenSong& song, int row, Change& change, WhichTags which);
  UpdateResult writeRecorded(OpenSong& song, int row, Change& change);
  UpdateResult writeTags(OpenSong& song, Change& change);
  bool saysOtherwise(OpenSong& song, int row, const Text& before);
  void showAgain(OpenSong& song, int row, bool newID3v2);

  Parts parts_;
};

}  // namespace velmora::tags
