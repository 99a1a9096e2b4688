#pragma once

#include <QTest>
#include <QWidget>

#include "qt/input_gate.h"
#include "qt/refresher.h"
#include "ui/window.h"

namespace velmora::qt {

struct PlainWindow : ui::Window {
  PlainWindow() : Window(u"Bench") {}
};

inline Text numbered(int number) {
  return QString::number(number).toStdU16String();
}

/// A window on the offscreen display that a binding is tried in.
class Bench {
 public:
  Bench() {
    gate.guard(&widget, window);
    widget.resize(400, 300);
  }

  /// Puts `child` in the window and shows both.
  template <typename Widget>
  Widget* show(Widget* child) {
    child->setParent(&widget);
    child->resize(widget.size());
    child->show();
    widget.show();
    widget.activateWindow();
    (void)QTest::qWaitForWindowActive(&widget);
    return child;
  }
  /// One turn of the event loop.
  void turn() { QCoreApplication::processEvents(); }

  Refresher refresher;
  PlainWindow window;
  InputGate gate{refresher};
  QWidget widget;
};

}  // namespace velmora::qt
