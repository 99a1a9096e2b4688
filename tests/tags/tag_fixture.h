#pragma once

#include <gtest/gtest.h>

#include "core/track_table.h"
#include "system/posix_files.h"
#include "tags/update_result.h"
#include "tests/support/mp3_maker.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

namespace velmora::tags {

/// Real files in a folder of their own, and dialogs that answer by a script.
struct TagFixture : testing::Test {
  UpdateContext context() { return {failures, table}; }

  test::TempFolder folder;
  system::PosixFiles files;
  test::ScriptedDialogs dialogs;
  ui::Failures failures{dialogs};
  core::TrackTable table;
};

}  // namespace velmora::tags
