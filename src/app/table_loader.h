#pragma once

#include "core/data_folder.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "list/dash_finder.h"
#include "rows/artist_book.h"
#include "ui/form1.h"

namespace velmora::app {

/// Fills the whole table from the Data folder, and shows it in the Processing Window.
class TableLoader {
 public:
  struct Parts {
    core::TrackTable& table;
    const core::Settings& settings;
    core::DataFolder& data;
    list::DashFinder& dashes;
    rows::ArtistBook& artists;
    ui::Form1& form1;
  };
  explicit TableLoader(const Parts& parts) : parts_(parts) {}

  void load();

 private:
  void readColumns();
  void showList();
  void showCounts();

  Parts parts_;
};

}  // namespace velmora::app
