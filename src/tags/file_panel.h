#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/track_table.h"
#include "platform/files.h"
#include "tags/field_values.h"
#include "tags/open_song.h"
#include "tags/song_bytes.h"
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
  FilePanel(core::TrackTable& table, platform::Files& files, TagCache& cache, ui::Form1& form1)
      : table_(table), files_(files), cache_(cache), form1_(form1) {}

  /// Length in seconds of a file that is no MPEG audio, from the player when it has that file open; else 0.
  std::function<double(const Text& path)> durationOf;

  /// Makes `row` the current row, shows header and tags of the file, and reads its tags into the columns.
  /// The view of the tag that was chosen stays chosen where the file has that tag; else the other one is. A
  /// file that cannot be opened leaves what could not be shown blank and the columns as they were.
  void info(const Text& path, int row, InfoMode mode = InfoMode::Full);
  /// `info` with TagsOnly. Returns the length of the file in bytes when it had to be opened.
  std::optional<std::uint64_t> readTags(const Text& path, int row);
  /// The full `info` of a song that may be open already.
  void info(OpenSong& song, int row);
  /// Fills the tag boxes from the columns of the chosen tag, for the current row.
  void showTags();
  /// What the user changed in the tag boxes since they were filled.
  FieldValues changed() const;
  /// Whether ID3v1 is in view because the row has no ID3v2 tag, and not because it was chosen.
  bool onlyFirstThere() const { return onlyFirst_; }
  /// Puts the bare name and the artist and title parts of a row in their boxes.
  void showName(int row);
  /// Blanks all labels and boxes.
  void clear();
  /// Whether what stands in the panel belongs to this row: not after `clear`, nor when another row became
  /// the current one with its tags alone read.
  bool shows(int row) const;

 private:
  struct View {
    bool id3v1;
    bool id3v2;
  };

  using BytesOf = std::function<SongBytes&()>;
  void show(const Text& path, int row, InfoMode mode, const BytesOf& bytesOf);
  void clearLabels();
  /// Takes both views out of use and blanks the tag boxes; returns what was chosen, both when none was.
  View clearTags();
  void showFile(SongBytes& song, const Text& path);
  void showHeader(SongBytes& song);
  void showLength(double seconds);
  void offerViews(const View& chosen);

  core::TrackTable& table_;
  platform::Files& files_;
  TagCache& cache_;
  ui::Form1& form1_;
  FieldValues shown_;  // what the boxes were filled with
  bool onlyFirst_ = false;
};

}  // namespace velmora::tags
