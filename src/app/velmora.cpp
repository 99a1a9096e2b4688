#include "app/velmora.h"

#include <utility>

#include "app/enable_commands.h"
#include "app/house.h"
#include "app/shut_down.h"
#include "app/start_up.h"
#include "app/tell_of_others.h"
#include "app/wiring.h"

namespace velmora::app {

namespace {

/// What every command leaves behind, however it ended: no progress window, the windows as they should be.
void commandDone(House& house) {
  if (house.progress.shown()) house.closing.moze();
  house.modal.holdOthers();
  house.front.settle();
  enableCommands(house);
  tellOfOthers(house);
}

}  // namespace

Velmora::Velmora(const Services& services, Folders folders)
    : house_(std::make_unique<House>(services, std::move(folders))) {
  house_->onEnd = [this] { raise(onEnd); };
  house_->work.onCommandDone = [this] { commandDone(*house_); };
  wireForm1(*house_);
  wireRepair(*house_);
  wireReviews(*house_);
  wireForm2(*house_);
  wireForm3(*house_);
  wireForm8(*house_);
  wireOptions(*house_);
  wireSmallWindows(*house_);
}

Velmora::~Velmora() = default;

void Velmora::start() {
  house_->work.run([this] { startUp(*house_); });
}

void Velmora::requestEnd() {
  app::requestEnd(*house_);
}

bool Velmora::ended() const {
  return house_->ended;
}

ui::Windows& Velmora::windows() {
  return house_->windows;
}

core::TrackTable& Velmora::table() {
  return house_->table;
}

Events& Velmora::events() {
  return house_->events;
}

}  // namespace velmora::app
