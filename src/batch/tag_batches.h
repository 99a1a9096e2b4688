#pragma once

#include "batch/batch_frame.h"
#include "tags/each_tag_writer.h"
#include "tags/field_boxes.h"

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
    tags::EachTagWriter& eachTagWriter;
    tags::FieldBoxes& fields;
  };
  explicit TagBatches(const Parts& parts) : parts_(parts) {}

  /// "FN-->ID3": artist and title part of each name go into its tags. In the Artist List view the songs are
  /// what is selected.
  void fromNames();
  /// "UPDATE": the boxes of the panel go into the tags of the current row; with several files selected the
  /// ticked boxes go into the tags of all.
  void update();

 private:
  /// Shows one file among several, with its ID3v1 or its ID3v2 tag in view, or the only one that it has, and
  /// writes what the panel shows.
  void updateOneOfSeveral(int row, bool first);

  Parts parts_;
};

}  // namespace velmora::batch
