#include "qt/input_gate.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace velmora::qt {

namespace {

// Releases pass: what was pressed before the window was disabled must not stay pressed.
bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

// The widget that stands above an object: a menu belongs to the window that it opened from, a dialog only to
// itself, an action to the widget that holds it.
const QObject* above(const QObject* object) {
  const auto* widget = qobject_cast<const QWidget*>(object);
  if (widget && widget->isWindow() && widget->windowType() != Qt::Popup) return nullptr;
  return object->parent();
}

}  // namespace

InputGate::InputGate(Refresher& refresher) : refresher_(refresher) {
  qApp->installEventFilter(this);
}

InputGate::~InputGate() {
  qApp->removeEventFilter(this);
}

void InputGate::guard(QWidget* widget, const ui::Window& model) {
  guarded_[widget] = &model;
  connect(widget, &QObject::destroyed, this, [this, widget] { guarded_.erase(widget); });
}

bool InputGate::closedFor(const QObject* receiver) const {
  for (const QObject* object = receiver; object; object = above(object)) {
    const auto found = guarded_.find(object);
    if (found != guarded_.end()) return !found->second->enabled();
  }
  return false;
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
  if (!isInput(event->type())) return false;
  refresher_.flush();
  return closedFor(receiver);
}

}  // namespace velmora::qt
