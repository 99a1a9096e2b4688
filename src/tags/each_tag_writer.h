#pragma once

#include <functional>

#include "core/track_table.h"
#include "tags/file_panel.h"
#include "tags/update_tags.h"
#include "ui/form1.h"

namespace velmora::tags {

/// Writes new values into both tags of a row without carrying the other values of one tag into the other: a
/// long album of the ID3v2 tag must not shrink because the ID3v1 tag is in view.
class EachTagWriter {
 public:
  EachTagWriter(const core::TrackTable& table, FilePanel& panel, TagWriter& writer, ui::Form1& form1)
      : table_(table), panel_(panel), writer_(writer), form1_(form1) {}

  /// Writes the tags asked for of `song`, which is that of the row that the panel shows. `fill` puts the new
  /// values in the boxes, on top of those of the tag in view; it is called once per write. A tag that the row
  /// lacks is made with the values of the one that it has. The two write marks are as before afterwards.
  void write(OpenSong& song, bool toID3v1, bool toID3v2, const std::function<void()>& fill);

 private:
  void writeOnce(OpenSong& song, ui::OptionButton& view, bool toID3v1, bool toID3v2,
                 const std::function<void()>& fill);
  bool sameButForTitleAndArtist() const;

  const core::TrackTable& table_;
  FilePanel& panel_;
  TagWriter& writer_;
  ui::Form1& form1_;
};

}  // namespace velmora::tags
