#pragma once

#include <unordered_map>

#include <QObject>

#include "qt/refresher.h"
#include "ui/window.h"

class QWidget;

namespace velmora::qt {

/// Stands before all input of the user: brings the widgets up to date first, so that a click meets what the
/// models say, and lets nothing through to a window whose model is disabled. Such a window is not drawn
/// greyed: it stays readable behind the progress window, and nothing flickers when a command is short.
class InputGate : public QObject {
  Q_OBJECT

 public:
  explicit InputGate(Refresher& refresher);
  ~InputGate() override;

  /// Guards `widget`, a top-level widget, by its model.
  void guard(QWidget* widget, const ui::Window& model);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool closedFor(const QObject* receiver) const;

  Refresher& refresher_;
  std::unordered_map<const QObject*, const ui::Window*> guarded_;
};

}  // namespace velmora::qt
