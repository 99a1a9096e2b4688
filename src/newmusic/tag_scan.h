#pragma once

#include "core/data_folder.h"
#include "newmusic/new_music_lists.h"
#include "tags/file_panel.h"

namespace velmora::newmusic {

/// "Scan ID3 Of Every New Music Files".
class TagScan {
 public:
  struct Parts {
    core::TrackTable& table;
    core::DataFolder& data;
    ui::Windows& windows;
    ui::Progress& progress;
    tags::FilePanel& panel;
    NewMusicLists& lists;
    MoveSummary& summary;
  };
  explicit TagScan(const Parts& parts) : parts_(parts) {}

  /// Reads the tags of all rows that were not read yet, until Stop, and lists the genres anew.
  void scan();

 private:
  void readAll();

  Parts parts_;
};

/// Reads the tags of all rows of the working list that were not read yet, until Stop. The current row stays.
void readUnreadRows(core::TrackTable& table, tags::FilePanel& panel, ui::Progress& progress);

}  // namespace velmora::newmusic
