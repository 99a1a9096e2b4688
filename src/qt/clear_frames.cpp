#include "qt/clear_frames.h"

#include <QPalette>
#include <QStyleOption>

#include "qt/icons.h"

namespace velmora::qt {

namespace {

const QString improvedStyle = QStringLiteral("Fusion");
constexpr double frameStrength = 0.4;  // of the text's colour over the window's
constexpr int styleDarkens = 140;  // the percentage by which the style makes a frame of the window's colour

bool isFrame(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
    case QStyle::PE_IndicatorRadioButton:
      return true;
    default:
      return false;
  }
}

QColor mixed(const QColor& ground, const QColor& ink, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return {mix(ground.red(), ink.red()), mix(ground.green(), ink.green()), mix(ground.blue(), ink.blue())};
}

}  // namespace

ClearFrames::ClearFrames() : QProxyStyle(improvedStyle) {}

void ClearFrames::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const QPalette* given = option && isFrame(element) ? &option->palette : nullptr;
  if (!given) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool enabled = option->state & State_Enabled;
  const QColor frame = mixed(given->color(QPalette::Window), given->color(QPalette::WindowText),
                             enabled ? frameStrength : frameStrength / 2);
  // The style takes the frame's colour from the window's. The option is of a kind that only the style knows,
  // so its palette is changed in place for as long as it draws.
  auto& palette = const_cast<QStyleOption*>(option)->palette;
  const QPalette before = palette;
  palette.setColor(QPalette::Window, frame.lighter(styleDarkens));
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  palette = before;
}

QIcon ClearFrames::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
  if (icon == SP_ToolBarHorizontalExtensionButton) return glyph(QStringLiteral("more"));
  return QProxyStyle::standardIcon(icon, option, widget);
}

bool wantsClearFrames(const QStyle& style) {
  return style.name().compare(improvedStyle, Qt::CaseInsensitive) == 0;
}

}  // namespace velmora::qt
