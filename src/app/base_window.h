#pragma once

#include <functional>

#include "app/shared_screen.h"
#include "base/base_lists.h"
#include "base/year_filter.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "ui/form3.h"

namespace velmora::app {

/// How the Music Base Window comes and goes: its menu marks, its place, its Music Base folder and what its
/// lists showed.
class BaseWindow {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    platform::Dialogs& dialogs;
    platform::Desktop& desktop;
    ui::Form3& form3;
    base::BaseLists& lists;
    base::YearFilter& years;
    SharedScreen& screen;
  };
  explicit BaseWindow(const Parts& parts) : parts_(parts) {}

  /// What must be done before the window is shown for the first time; later calls do nothing.
  void loadOnce();
  /// Stores place, splitters, list states and `sourceprozor`. Does nothing when the window was never loaded,
  /// since it would then store what it does not know.
  void unload();
  /// Stores list states and `sourceprozor`, for a change to the Processing Window.
  void storeLists();
  /// Reads the mark of "Play With One Click", which the New Music Window switches off while it is open.
  void loadOneClick();
  /// Takes that mark off without storing it.
  void switchOffOneClick();

  /// Raised when another Music Base folder was chosen.
  std::function<void()> onRootChosen;
  /// "Select main folder for Your Music Base".
  void selectMainFolder();
  /// "Show menu and buttons": shows them, or hides them.
  void toggleMenuAndButtons();
  /// Stores the mark of a menu entry that was clicked.
  void storeMark(TextView key, bool checked);

 private:
  void loadMarks();
  void showRoot();
  void placeWindow();
  void storePlace();

  Parts parts_;
  bool loaded_ = false;
  bool keepsMarks_ = false;
};

}  // namespace velmora::app
