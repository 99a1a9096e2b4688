#include "qt/icons.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

// Outside of any namespace, as the resource compiler wants it.
static void initResources() {
  Q_INIT_RESOURCE(velmora);
}

namespace velmora::qt {

namespace {

// The main colour that the icons are drawn with; what it stands for follows the palette.
constexpr const char* inkInFiles = "#5f7f9f";

QColor ink(QIcon::Mode mode) {
  const QPalette palette = QApplication::palette();
  if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
  const QColor text = palette.color(QPalette::WindowText);
  const QColor ground = palette.color(QPalette::Window);
  const auto mix = [](int a, int b) { return (a * 7 + b * 3) / 10; };
  return {mix(text.red(), ground.red()), mix(text.green(), ground.green()), mix(text.blue(), ground.blue())};
}

class GlyphEngine final : public QIconEngine {
 public:
  explicit GlyphEngine(const QString& file) : file_(file) {
    QFile source(file);
    if (source.open(QIODevice::ReadOnly)) svg_ = source.readAll();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    // Lists paint the same icon for each row, at each step of scrolling.
    const QString key = QStringLiteral("%1 %2 %3x%4 %5")
                            .arg(file_, ink(mode).name())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode == QIcon::Disabled);
    QPixmap drawn;
    if (QPixmapCache::find(key, &drawn)) return drawn;
    drawn = draw(size, mode);
    QPixmapCache::insert(key, drawn);
    return drawn;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
  }

  QIconEngine* clone() const override { return new GlyphEngine(*this); }

 private:
  QPixmap draw(const QSize& size, QIcon::Mode mode) const {
    QByteArray coloured = svg_;
    coloured.replace(inkInFiles, ink(mode).name().toLatin1());
    QBuffer buffer(&coloured);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(size);
    QImage image = reader.read();
    if (image.isNull()) return {};
    if (mode != QIcon::Disabled) return QPixmap::fromImage(image);
    QPixmap faded(size);
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(0.4);
    painter.drawImage(0, 0, image);
    return faded;
  }

  QString file_;
  QByteArray svg_;
};

}  // namespace

QIcon glyph(const QString& name) {
  initResources();
  return QIcon(new GlyphEngine(QStringLiteral(":/icons/%1.svg").arg(name)));
}

QIcon programIcon() {
  return glyph(QStringLiteral("velmora"));
}

}  // namespace velmora::qt
