#pragma once

#include "app/events.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/dialogs.h"
#include "ui/form3.h"

namespace velmora::app {

/// How the Music Base Window comes and goes: its menu marks, its place and its Music Base folder.
class BaseWindow {
 public:
  BaseWindow(core::TrackTable& table, core::Settings& settings, platform::Dialogs& dialogs, ui::Form3& form3,
             Events& events);

  /// What must be done before the window is shown for the first time; later calls do nothing.
  void loadOnce();
  /// Stores place, splitters, list states and `sourceprozor`. Does nothing when the window was never loaded,
  /// since it would then store what it does not know.
  void unload();
  /// Stores list states and `sourceprozor`, for a change to the Processing Window.
  void storeLists();

  /// "Select main folder for Your Music Base".
  void selectMainFolder();
  void autoListFocusClicked();

 private:
  void loadMarks();
  void showRoot();
  void placeWindow();
  void storePlace();

  core::TrackTable& table_;
  core::Settings& settings_;
  platform::Dialogs& dialogs_;
  ui::Form3& form3_;
  Events& events_;
  bool loaded_ = false;
};

}  // namespace velmora::app
