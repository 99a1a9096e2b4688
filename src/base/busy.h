#pragma once

#include <functional>

#include "core/track_table.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::base {

/// ShowBusy and HideBusy of the Music Base Window and the New Music Window: the progress window opens in
/// front of them, and both are disabled meanwhile. HideBusy comes however the scope ends.
class Busy {
 public:
  Busy(ui::Windows& windows, ui::Progress& progress, TextView text) : windows_(windows), progress_(progress) {
    windows_.form2.setEnabled(false);
    windows_.form3.setEnabled(false);
    progress_.show(text);
  }
  ~Busy() {
    progress_.close();
    windows_.form1.setEnabled(true);
    windows_.form2.setEnabled(true);
    windows_.form3.setEnabled(true);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  ui::Windows& windows_;
  ui::Progress& progress_;
};

}  // namespace velmora::base
