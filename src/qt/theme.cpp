#include "qt/theme.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

namespace velmora::qt {

namespace {

struct Colours {
  QRgb window, base, alternate, text, button, placeholder, disabled, highlight, highlighted, link, tipBase;
};

constexpr Colours light = {0xfff4f5f7, 0xffffffff, 0xfff7f8fa, 0xff1d2329, 0xfff9fafb, 0xff7b858f,
                           0xffa3abb3, 0xff2f74b5, 0xffffffff, 0xff1f6fb2, 0xfffdfdf4};
constexpr Colours dark = {0xff23272c, 0xff1b1e22, 0xff20242a, 0xffe4e7ea, 0xff2e343a, 0xff8d969f,
                          0xff69727b, 0xff2f6ea8, 0xffffffff, 0xff6db3f2, 0xff30363d};

QPalette paletteOf(const Colours& colours) {
  QPalette palette{QColor(colours.button), QColor(colours.window)};
  palette.setColor(QPalette::WindowText, colours.text);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::ButtonText, colours.text);
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.alternate);
  palette.setColor(QPalette::PlaceholderText, colours.placeholder);
  palette.setColor(QPalette::Highlight, colours.highlight);
  palette.setColor(QPalette::HighlightedText, colours.highlighted);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::ToolTipBase, colours.tipBase);
  palette.setColor(QPalette::ToolTipText, colours.text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, colours.disabled);
  return palette;
}

}  // namespace

void applyTheme(QApplication& application) {
  const QByteArray theme = qgetenv("VELMORA_THEME");
  if (theme == "dark" || theme == "light") {
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(paletteOf(theme == "dark" ? dark : light));
  }
  // The icons of message boxes and file dialogs, where the desktop has none of its own.
  const QString icons = QIcon::themeName();
  const bool isDark = application.palette().color(QPalette::Window).lightness() < 128;
  if (icons.isEmpty() || icons == u"hicolor")
    QIcon::setThemeName(isDark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
}

}  // namespace velmora::qt
