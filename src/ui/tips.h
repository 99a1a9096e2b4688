#pragma once

#include <vector>

#include "core/settings.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "ui/windows.h"

namespace velmora::ui {

/// Whether the tip of the day comes up at start: unless the user said no.
bool showsTipsAtStartup(const core::Settings& settings);
/// Stores what the user says about it. Nothing is written while the meaning stays the same.
void storeShowTipsAtStartup(core::Settings& settings, bool show);

/// The tips of frmTip, one per line of TIPOFDAY.TXT: a quoted record, or the bare line as a user types it.
class Tips {
 public:
  Tips(core::Settings& settings, platform::Files& files, platform::Desktop& desktop, FrmTip& window);

  /// Reads the file and shows one tip at random, or says that the file is missing. Puts the check of the
  /// window in step with the settings.
  void load(const Text& path);
  /// The next tip, round and round.
  void next();
  /// The check "Show Tips at Startup" was clicked: stored at once.
  void showAtStartupClicked();

 private:
  void showTip();

  core::Settings& settings_;
  platform::Files& files_;
  platform::Desktop& desktop_;
  FrmTip& window_;
  std::vector<Text> tips_;
  int index_ = 0;  // from 1; 0 without tips
};

}  // namespace velmora::ui
