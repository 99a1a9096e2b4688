#include "qt/segment.h"

#include <QPainter>
#include <QPainterPath>

#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr double radius = unit;

// A box whose corners are round only at the ends of the control.
QPainterPath outline(const QRectF& box, bool roundLeft, bool roundRight) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addRoundedRect(box, radius, radius);
  if (!roundLeft) path.addRect(QRectF(box.topLeft(), QSizeF(box.width() / 2, box.height())));
  if (!roundRight) path.addRect(QRectF(box.center().x(), box.top(), box.width() / 2, box.height()));
  return path.simplified();
}

}  // namespace

Segment::Segment(const QString& text) {
  setText(text);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  roomy(this);
}

QSize Segment::sizeHint() const {
  const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
  return {words.width() + 6 * unit, std::max(7 * unit, words.height() + 3 * unit)};
}

void Segment::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  const QPalette& colours = palette();
  QColor ground = colours.color(group, QPalette::Button);
  if (isChecked())
    ground = isEnabled() ? colours.color(QPalette::Highlight) : colours.color(group, QPalette::Mid);
  else if (isEnabled() && underMouse())
    ground = ground.lighter(108);
  const bool roundLeft = place_ == Place::First || place_ == Place::Only;
  const bool roundRight = place_ == Place::Last || place_ == Place::Only;
  // Neighbours share the line between them.
  QRectF box = QRectF(rect()).adjusted(roundLeft ? 0.5 : -0.5, 0.5, -0.5, -0.5);
  painter.setPen(lineColour(colours));
  painter.setBrush(ground);
  painter.drawPath(outline(box, roundLeft, roundRight));
  const QColor ink = colours.color(group, isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
  if (hasFocus()) {
    QColor ring = ink;
    ring.setAlphaF(0.5F);
    painter.setPen(ring);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(3, 3, -3, -3), 2, 2);
  }
  painter.setPen(isEnabled() ? ink : colours.color(group, QPalette::ButtonText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

QWidget* joined(std::initializer_list<Segment*> segments) {
  auto* group = new QWidget;
  QHBoxLayout* layout = row(group, 0);
  for (Segment* segment : segments) {
    const bool first = segment == *segments.begin();
    const bool last = segment == *(segments.end() - 1);
    segment->setPlace(first && last ? Segment::Place::Only
                      : first       ? Segment::Place::First
                      : last        ? Segment::Place::Last
                                    : Segment::Place::Middle);
    layout->addWidget(segment);
  }
  return group;
}

}  // namespace velmora::qt
