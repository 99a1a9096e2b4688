#pragma once

#include "core/settings.h"
#include "core/track_table.h"
#include "platform/files.h"
#include "ui/form1.h"

namespace velmora::app {

/// What the Processing Window keeps between two runs, besides the table.
class ProcessingWindow {
 public:
  ProcessingWindow(core::TrackTable& table, core::Settings& settings, platform::Files& files,
                   ui::Form1& form1);

  /// Folders, player and place, as they were.
  void load();
  /// Selections and top rows of the lists, as they were. Clicks are kept quiet.
  void restoreLists();
  /// What is stored when the window closes for good.
  void store();
  /// The window lost the front: its place is stored when it has changed.
  void storePlace();

 private:
  void loadPlace();
  Text nearestFolder(Text folder);

  core::TrackTable& table_;
  core::Settings& settings_;
  platform::Files& files_;
  ui::Form1& form1_;
  ui::Placement storedPlace_;
};

}  // namespace velmora::app
