#include "qt/colours.h"

#include <algorithm>
#include <cmath>

namespace velmora::qt {

namespace {

constexpr double readable = 4.5;
constexpr int step = 4;  // per cent

QColor coloured(const ui::Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

bool isGrey(const ui::Colour& colour) {
  return colour.red == colour.green && colour.green == colour.blue;
}

double luminance(const QColor& colour) {
  const auto linear = [](double share) {
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, int perCent) {
  const auto mix = [perCent](int a, int b) { return (a * (100 - perCent) + b * perCent) / 100; };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, brighter] = std::minmax({luminance(one), luminance(other)});
  return (brighter + 0.05) / (darker + 0.05);
}

QColor inkFor(const ui::Colour& colour, const QColor& ground, const QPalette& palette) {
  if (isGrey(colour)) return palette.color(QPalette::WindowText);
  const QColor towards = luminance(ground) < 0.18 ? Qt::white : Qt::black;
  QColor ink = coloured(colour);
  for (int perCent = step; perCent < 100 && contrast(ink, ground) < readable; perCent += step)
    ink = mixed(coloured(colour), towards, perCent);
  return ink;
}

QPalette groundFor(const ui::Colour& colour, QPalette palette) {
  if (isGrey(colour)) return palette;
  const QColor ground = coloured(colour);
  const QColor ink = contrast(ground, Qt::black) > contrast(ground, Qt::white) ? Qt::black : Qt::white;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, ground);
    palette.setColor(group, QPalette::ButtonText, ink);
  }
  return palette;
}

}  // namespace velmora::qt
