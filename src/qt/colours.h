#pragma once

#include <QColor>
#include <QPalette>

#include "ui/controls.h"

namespace velmora::qt {

/// The ink of a text that is to be seen in `colour` on `ground`: as near to it as can be read there. Greys
/// mean "nothing special" and give the plain ink of the palette.
QColor inkFor(const ui::Colour& colour, const QColor& ground, const QPalette& palette);

/// Puts `colour` behind the caption of a button, with an ink that can be read on it. A grey gives the button
/// the look that it has by itself.
QPalette groundFor(const ui::Colour& colour, QPalette palette);

/// How well the two can be told apart, from 1 to 21, as the guidelines for readable pages count it. Text
/// wants 4.5.
double contrast(const QColor& one, const QColor& other);

}  // namespace velmora::qt
