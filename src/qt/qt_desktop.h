#pragma once

#include <QElapsedTimer>

#include "platform/desktop.h"
#include "system/program_folder.h"

namespace velmora::qt {

/// The desktop session through the toolkit. Needs a QApplication.
class QtDesktop final : public platform::Desktop {
 public:
  explicit QtDesktop(const system::InstanceLock& lock);

  void pumpEvents() override;
  void waitForEvents() override;
  /// The windows are painted meanwhile; what the user does waits until the next pump.
  void sleep(int milliseconds) override;
  std::int64_t clockMilliseconds() override;
  int currentYear() override;
  platform::ScreenRoom screenRoom() override;
  bool lessMotion() override;
  double random() override;
  bool anotherInstanceRunning() override;
  int systemVersion() override;
  void openWithDefaultProgram(const Text& pathOrPage) override;

 private:
  const system::InstanceLock& lock_;
  QElapsedTimer clock_;
  QElapsedTimer sincePump_;
};

}  // namespace velmora::qt
