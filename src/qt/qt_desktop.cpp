#include "qt/qt_desktop.h"

#include <cmath>

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "core/text.h"
#include "qt/text.h"

namespace velmora::qt {

namespace {

constexpr int frameMilliseconds = 16;
constexpr int systemThatNeedsNoPause = 1000;
constexpr double twipsPerInch = 1440;

// From the bytes of the path, so that a name that is no valid UTF-8 is found too.
QUrl fileUrl(const Text& path) {
  const Bytes bytes = core::toBytes(path);
  const QByteArray escaped = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))
                                 .toPercentEncoding(QByteArrayLiteral("/"));
  return QUrl::fromEncoded("file://" + escaped);
}

}  // namespace

QtDesktop::QtDesktop(const system::InstanceLock& lock) : lock_(lock) {
  clock_.start();
}

void QtDesktop::pumpEvents() {
  if (sincePump_.isValid() && sincePump_.elapsed() < frameMilliseconds) return;
  QCoreApplication::processEvents();
  sincePump_.start();
}

void QtDesktop::waitForEvents() {
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  sincePump_.start();
}

void QtDesktop::sleep(int milliseconds) {
  QElapsedTimer slept;
  slept.start();
  QTimer wake;
  wake.setTimerType(Qt::PreciseTimer);
  wake.start(milliseconds);
  while (slept.elapsed() < milliseconds)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

std::int64_t QtDesktop::clockMilliseconds() {
  return clock_.elapsed();
}

int QtDesktop::currentYear() {
  return QDate::currentDate().year();
}

platform::ScreenRoom QtDesktop::screenRoom() {
  const QWidget* window = QApplication::activeWindow();
  const QScreen* screen = window ? window->screen() : QGuiApplication::primaryScreen();
  if (!screen) return {};
  const auto twips = [screen](int pixels) {
    return static_cast<int>(std::lround(pixels * twipsPerInch / screen->logicalDotsPerInch()));
  };
  const QRect room = screen->availableGeometry();
  return {twips(room.x()), twips(room.y()), twips(room.width()), twips(room.height())};
}

bool QtDesktop::lessMotion() {
  const QStyle* style = QApplication::style();
  return !QApplication::isEffectEnabled(Qt::UI_General) || !style->styleHint(QStyle::SH_Widget_Animate) ||
         style->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

double QtDesktop::random() {
  return QRandomGenerator::global()->generateDouble();
}

bool QtDesktop::anotherInstanceRunning() {
  return lock_.anotherInstanceRunning();
}

int QtDesktop::systemVersion() {
  return systemThatNeedsNoPause;
}

void QtDesktop::openWithDefaultProgram(const Text& pathOrPage) {
  const QUrl page(toQString(pathOrPage));
  const bool isPage = page.scheme() == u"http" || page.scheme() == u"https";
  QDesktopServices::openUrl(isPage ? page : fileUrl(pathOrPage));
}

}  // namespace velmora::qt
