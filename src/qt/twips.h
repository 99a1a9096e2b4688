#pragma once

#include <cmath>

#include <QScreen>
#include <QWidget>

namespace velmora::qt {

/// Lengths on a widget's screen in twips (1/1440 inch) and back, whatever its resolution.
constexpr double twipsPerInch = 1440;

inline int toTwips(int pixels, const QWidget* widget) {
  return static_cast<int>(std::lround(pixels * twipsPerInch / widget->screen()->logicalDotsPerInch()));
}

inline int toPixels(int twips, const QWidget* widget) {
  return static_cast<int>(std::lround(twips * widget->screen()->logicalDotsPerInch() / twipsPerInch));
}

}  // namespace velmora::qt
