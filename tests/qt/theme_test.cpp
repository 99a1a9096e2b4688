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

class ThemeTest : public testing::TestWithParam<const char*> {
 protected:
  ThemeTest() : palette_(QApplication::palette()), style_(QApplication::style()->name()) {
    qputenv("VELMORA_THEME", GetParam());
    applyTheme(*qApp);
  }
  ~ThemeTest() override {
    qunsetenv("VELMORA_THEME");
    QApplication::setStyle(style_);
    QApplication::setPalette(palette_);
  }

  // The strongest step from the window's ground that an empty control shows along its middle line.
  static double frameContrast(QWidget& widget) {
    widget.resize(widget.sizeHint());
    const QImage picture = widget.grab().toImage();
    const QColor ground = widget.palette().color(QPalette::Window);
    double strongest = 1;
    for (int x = 0; x < picture.width(); ++x)
      strongest = std::max(strongest, contrast(picture.pixelColor(x, picture.height() / 2), ground));
    return strongest;
  }

 private:
  QPalette palette_;
  QString style_;
};

TEST_P(ThemeTest, EmptyControlsHaveFramesThatCanBeSeen) {
  QCheckBox check;
  QRadioButton option;
  QLineEdit line;
  for (QWidget* widget :
       {static_cast<QWidget*>(&check), static_cast<QWidget*>(&option), static_cast<QWidget*>(&line)}) {
    EXPECT_GE(frameContrast(*widget), 1.9) << widget->metaObject()->className();
  }
}

INSTANTIATE_TEST_SUITE_P(Both, ThemeTest, testing::Values("light", "dark"),
                         [](const auto& given) { return std::string(given.param); });

}  // namespace
}  // namespace velmora::qt
