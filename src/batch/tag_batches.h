#pragma once

#include "batch/batch_frame.h"
#include "tags/field_boxes.h"
#include "tags/file_panel.h"
#include "tags/update_tags.h"

namespace velmora::batch {

/// The commands that write the tags of the selected files, each one step that can be undone. The two write
/// marks of the panel decide which tags are written and made.
class TagBatches {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    ui::Form1& form1;
    BatchFrame& frame;
    tags::FilePanel& panel;
    tags::TagWriter& tagWriter;
    tags::FieldBoxes& fields;
  };
  explicit TagBatches(const Parts& parts) : parts_(parts) {}

  /// "FN-->ID3": artist and title part of each name go into its tags. In the Artist List view the songs are
  /// what is selected.
  void fromNames();
  /// "UPDATE": what was changed in the boxes of the panel goes into the tags of the current row; with several
  /// files selected the ticked boxes go into the tags of all.
  void update();

 private:
  /// Writes values into the marked tags of a row; false after Abort.
  bool write(int row, const tags::FieldValues& values);

  Parts parts_;
};

}  // namespace velmora::batch
