#pragma once

#include "core/track_table.h"
#include "journal/undo_record.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "tags/busy_file.h"
#include "tags/file_panel.h"
#include "tags/tag_removal.h"
#include "ui/failures.h"
#include "undo/undo_errors.h"
#include "undo/undo_outcome.h"

namespace velmora::undo {

/// Takes back a write of tags ("id3"): columns and file get the values from before it.
class TagRestorer {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    ui::Failures& failures;
    platform::Desktop& desktop;
    platform::FileHolder& player;
    tags::BusyFile& busyFile;
    tags::FilePanel& panel;
    UndoErrors& errors;
  };
  explicit TagRestorer(const Parts& parts) : parts_(parts) {}

  /// A tag that the write made goes; one that has other values now is written. The song is that of the row,
  /// under whatever name it bears now; where its file is not there any more, its columns alone go back.
  UndoOutcome restore(int row, const journal::RowSnapshot& before);

 private:
  /// Both answer whether the tag is gone.
  bool removeID3v1(const Text& path);
  bool removeID3v2(const Text& path, bool& mixed);
  tags::RemovalParts removalParts() const;
  UndoOutcome writeTags(const Text& path, core::Track& track);
  bool makeWritable(const Text& path);

  Parts parts_;
};

}  // namespace velmora::undo
