#pragma once

#include <vector>

#include "core/settings.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "ui/windows.h"

namespace velmora::ui {

/// The tips of frmTip: one record per tip in TIPOFDAY.TXT.
class Tips {
 public:
  Tips(core::Settings& settings, platform::Files& files, platform::Desktop& desktop, FrmTip& window);

  /// Reads the file and shows one tip at random, or says that the file is missing.
  void load(const Text& path);
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
