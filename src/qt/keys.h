#pragma once

#include <optional>

#include "ui/controls.h"

class QKeyEvent;

namespace velmora::qt {

/// The key as commands know it; nothing for a key that they do not tell apart, or with Ctrl, Alt or Meta
/// held.
std::optional<ui::KeyPress> keyPress(const QKeyEvent& event);

}  // namespace velmora::qt
