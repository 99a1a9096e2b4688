#pragma once

#include <vector>

#include "core/track_table.h"
#include "platform/files.h"
#include "ui/form1.h"
#include "ui/progress.h"

namespace velmora::list {

/// The paths of `niznomusic` that a list shows.
std::vector<Text> shownOtherFiles(const core::TrackTable& table);
/// Fills the file list with the files that are not music, and shows their count and the sum of their sizes.
void listOtherFiles(const core::TrackTable& table, platform::Files& files, ui::Progress& progress,
                    ui::Form1& form1);

}  // namespace velmora::list
