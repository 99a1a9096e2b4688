#include "app/wiring.h"

#include <utility>

#include "app/house.h"

namespace velmora::app {

std::function<void()> command(House& house, ui::Window& window, std::function<void()> run) {
  return [&house, &window, run = std::move(run)] {
    if (window.enabled()) house.work.run(run);
  };
}

std::function<void()> opens(House& house, ui::Window& parent, ui::Window& opened) {
  return command(house, parent, [&house, &opened] { house.modal.run(opened); });
}

}  // namespace velmora::app
