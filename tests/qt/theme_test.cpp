#include "qt/theme.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>

#include "qt/colours.h"

namespace velmora::qt {
namespace {

// The strongest step from the window's ground that an empty control shows along its middle line.
double frameContrast(QWidget& widget) {
  widget.resize(widget.sizeHint());
  const QImage picture = widget.grab().toImage();
  const QColor ground = widget.palette().color(QPalette::Window);
  double strongest = 1;
  for (int x = 0; x < picture.width(); ++x)
    strongest = std::max(strongest, contrast(picture.pixelColor(x, picture.height() / 2), ground));
  return strongest;
}

TEST(Theme, EmptyControlsHaveFramesThatCanBeSeen) {
  const QPalette palette = QApplication::palette();
  const QString style = QApplication::style()->name();
  for (const char* theme : {"light", "dark"}) {
    SCOPED_TRACE(theme);
    qputenv("VELMORA_THEME", theme);
    applyTheme(*qApp);
    QCheckBox check;
    QRadioButton option;
    QLineEdit line;
    for (QWidget* widget : std::initializer_list<QWidget*>{&check, &option, &line})
      EXPECT_GE(frameContrast(*widget), 1.9) << widget->metaObject()->className();
  }
  qunsetenv("VELMORA_THEME");
  QApplication::setStyle(style);
  QApplication::setPalette(palette);
}

}  // namespace
}  // namespace velmora::qt
