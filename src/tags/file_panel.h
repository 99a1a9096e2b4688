#pragma once

#include <functional>

#include "core/track_table.h"
#include "platform/files.h"
#include "tags/tag_cache.h"
#include "ui/form1.h"

namespace velmora::tags {

/// What `info` leaves out.
enum class InfoMode {
  Full = 0,
  TagsOnly = 2,        ///< reads tags into the columns without touching the panel
  WorkingRowsOnly = 5  ///< leaves out tag reading for rows behind the working list
};

/// The facts about one file in the Processing Window.
class FilePanel {
 public:
  FilePanel(core::TrackTable& table, platform::Files& files, TagCache& cache, ui::Form1& form1);

  /// Length in seconds of a file that is no MPEG audio, from the player when it has that file open; else 0.
  std::function<double(const Text& path)> durationOf;

  /// Makes `row` the current row, shows header and tags of the file, and reads its tags into the columns.
  void info(const Text& path, int row, InfoMode mode = InfoMode::Full);
  /// Fills the tag boxes from the columns of the chosen tag, for the current row.
  void showTags();
  /// Puts the bare name and the artist and title parts of a row in their boxes.
  void showName(int row);
  /// Blanks all labels and boxes.
  void clear();

 private:
  core::TrackTable& table_;
  platform::Files& files_;
  TagCache& cache_;
  ui::Form1& form1_;
};

}  // namespace velmora::tags
