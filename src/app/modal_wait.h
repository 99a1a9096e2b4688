#pragma once

#include <vector>

#include "app/work.h"
#include "platform/desktop.h"
#include "ui/windows.h"

namespace velmora::app {

/// Windows that must be closed before the others can be used again.
class ModalWait {
 public:
  ModalWait(ui::Windows& windows, platform::Desktop& desktop, Work& work);

  /// Shows a window and returns when it is hidden again. All other windows are disabled meanwhile.
  void run(ui::Window& window);
  bool open() const { return !open_.empty(); }
  /// Disables again what a command run from the modal window has enabled.
  void holdOthers();
  /// Brings the window that is waited for to the front.
  void remind();
  /// Hides all windows that are waited for, and lets no further one open: the program ends.
  void dismissAll();

 private:
  struct Wait {
    ui::Window* window;
    std::vector<ui::Window*> held;  ///< what to enable when the wait is over
  };

  ui::Windows& windows_;
  platform::Desktop& desktop_;
  Work& work_;
  std::vector<Wait> open_;
  bool dismissed_ = false;
};

}  // namespace velmora::app
