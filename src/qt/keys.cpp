#include "qt/keys.h"

#include <QKeyEvent>

namespace velmora::qt {

std::optional<ui::KeyPress> keyPress(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
  const bool shift = event.modifiers() & Qt::ShiftModifier;
  switch (event.key()) {
    case Qt::Key_Up:
      return ui::KeyPress{ui::Key::Up, shift};
    case Qt::Key_Down:
      return ui::KeyPress{ui::Key::Down, shift};
    case Qt::Key_Left:
      return ui::KeyPress{ui::Key::Left, shift};
    case Qt::Key_Right:
      return ui::KeyPress{ui::Key::Right, shift};
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ui::KeyPress{ui::Key::Enter, shift};
    case Qt::Key_Delete:
      return ui::KeyPress{ui::Key::Delete, shift};
    case Qt::Key_F12:
      return ui::KeyPress{ui::Key::F12, shift};
    case Qt::Key_Escape:
      return ui::KeyPress{ui::Key::Escape, shift};
    default:
      return {};
  }
}

}  // namespace velmora::qt
