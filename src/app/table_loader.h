#pragma once

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "ui/form1.h"

namespace velmora::app {

/// Fills the whole table from the Data folder, and shows it in the Processing Window.
class TableLoader {
 public:
  TableLoader(core::TrackTable& table, const core::Settings& settings, core::DataFolder& data,
              ui::Form1& form1);

  void load();

 private:
  void readColumns();
  void showList();
  void showCounts();

  core::TrackTable& table_;
  const core::Settings& settings_;
  core::DataFolder& data_;
  ui::Form1& form1_;
};

}  // namespace velmora::app
