#include "qt/theme.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

#include "qt/clear_frames.h"

namespace velmora::qt {

namespace {

struct Colours {
  QRgb window, base, alternate, text, button, placeholder, disabled, highlight, highlighted, link, tipBase;
};

constexpr Colours light = {0xfff4f5f7, 0xffffffff, 0xfff7f8fa, 0xff1d2329, 0xfff9fafb, 0xff7b858f,
                           0xffa3abb3, 0xff2f74b5, 0xffffffff, 0xff1f6fb2, 0xfffdfdf4};
constexpr Colours dark = {0xff2d3136, 0xff1d2024, 0xff22262b, 0xffe6e8eb, 0xff3b4148, 0xff949da6,
                          0xff727b84, 0xff2f6ea8, 0xffffffff, 0xff6db3f2, 0xff3a4047};

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
  const bool own = theme == "dark" || theme == "light";
  if (own || wantsClearFrames(*QApplication::style())) QApplication::setStyle(new ClearFrames);
  if (own) QApplication::setPalette(paletteOf(theme == "dark" ? dark : light));
  // The icons of message boxes and file dialogs, where the desktop has none of its own.
  const QString icons = QIcon::themeName();
  const bool isDark = application.palette().color(QPalette::Window).lightness() < 128;
  if (icons.isEmpty() || icons == u"hicolor")
    QIcon::setThemeName(isDark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
}

}  // namespace velmora::qt
