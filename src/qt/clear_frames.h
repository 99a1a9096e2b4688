#pragma once

#include <QProxyStyle>

namespace velmora::qt {

/// The toolkit's own style, with frames that can be seen on any ground: it draws the frames of text boxes,
/// check boxes and option buttons a little darker than the window, which on a dark window is next to nothing.
class ClearFrames final : public QProxyStyle {
 public:
  ClearFrames();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

/// Whether this style is the one that `ClearFrames` stands in for.
bool wantsClearFrames(const QStyle& style);

}  // namespace velmora::qt
