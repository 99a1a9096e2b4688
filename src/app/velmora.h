#pragma once

#include <functional>
#include <memory>

#include "app/events.h"
#include "app/services.h"
#include "core/track_table.h"
#include "ui/windows.h"

namespace velmora::app {

struct House;

/// The program: owns everything, in order, wires controls to commands, and knows how it starts and ends.
class Velmora {
 public:
  Velmora(const Services& services, Folders folders);
  ~Velmora();
  Velmora(const Velmora&) = delete;
  Velmora& operator=(const Velmora&) = delete;

  /// Raised once when the program has ended; the event loop should then be left. That may be before start()
  /// has returned.
  std::function<void()> onEnd;

  /// Loads the table, brings up the window that was in front, and resumes what was interrupted.
  void start();
  /// Asks the program to end as closing the Music Base Window does: a running command is stopped first.
  void requestEnd();
  bool ended() const;

  ui::Windows& windows();
  /// The shared model, for tests and benchmarks.
  core::TrackTable& table();
  Events& events();

 private:
  std::unique_ptr<House> house_;
};

}  // namespace velmora::app
