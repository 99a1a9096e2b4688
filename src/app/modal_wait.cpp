#include "app/modal_wait.h"

namespace velmora::app {

ModalWait::ModalWait(ui::Windows& windows, platform::Desktop& desktop, Work& work)
    : windows_(windows), desktop_(desktop), work_(work) {}

void ModalWait::run(ui::Window& window) {
  if (dismissed_) return;
  /// Closes the wait however it is left, so that no error leaves a window disabled.
  struct Closing {
    ModalWait& modal;
    ~Closing() {
      Wait ended = std::move(modal.open_.back());
      modal.open_.pop_back();
      ended.window->hide();
      for (ui::Window* held : ended.held) held->setEnabled(true);
    }
  };
  open_.push_back({&window, {}});
  const Closing closing{*this};
  window.setEnabled(true);
  holdOthers();
  window.show();
  work_.wait([&] {
    while (window.visible()) desktop_.waitForEvents();
  });
}

void ModalWait::holdOthers() {
  if (open_.empty()) return;
  Wait& wait = open_.back();
  for (ui::Window* other : windows_.all()) {
    // The progress window stays usable: a command of the modal window may need its Stop.
    if (other == wait.window || other == &windows_.dialog1 || !other->enabled()) continue;
    other->setEnabled(false);
    wait.held.push_back(other);
  }
}

void ModalWait::remind() {
  if (open()) open_.back().window->bringToFront();
}

void ModalWait::dismissAll() {
  dismissed_ = true;
  for (Wait& wait : open_) {
    // As the user closes it, so that a choice without its OK is put back.
    wait.window->closeRequest();
    wait.window->hide();
  }
}

}  // namespace velmora::app
