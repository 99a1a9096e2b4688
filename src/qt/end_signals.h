#pragma once

#include <functional>

#include <QObject>

class QSocketNotifier;

namespace velmora::qt {

/// Turns the signals by which a session or a terminal asks a program to end into a call from the event loop,
/// so that the program can save its state first. One object at a time.
class EndSignals : public QObject {
  Q_OBJECT

 public:
  explicit EndSignals(std::function<void()> onEnd);
  ~EndSignals() override;

 private:
  std::function<void()> onEnd_;
  QSocketNotifier* notifier_;
};

}  // namespace velmora::qt
