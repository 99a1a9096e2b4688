#include "app/wiring.h"

#include <utility>

#include "app/command_trace.h"
#include "app/house.h"

namespace velmora::app {

std::function<void()> command(House& house, ui::Window& window, std::string_view name,
                              std::function<void()> run) {
  return [&house, &window, name, run = std::move(run)] {
    if (window.enabled()) house.work.run([&] { runTraced(house, name, run); });
  };
}

std::function<void()> opens(House& house, ui::Window& parent, std::string_view name, ui::Window& opened) {
  return command(house, parent, name, [&house, &opened] { house.modal.run(opened); });
}

}  // namespace velmora::app
