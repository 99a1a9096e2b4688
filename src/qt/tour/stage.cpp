#include "qt/tour/stage.h"

#include <algorithm>
#include <cstdio>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace velmora::qt {

namespace {

constexpr int tickMilliseconds = 15;
constexpr int paintTicks = 12;
constexpr int patienceTicks = 1000;
constexpr int margin = 24;
constexpr int shadow = 12;
constexpr int barHeight = 30;

QString plain(QString text) {
  return text.remove(u'&');
}

// Main windows first, then what stands above them in the order of opening.
QList<QWidget*> windowsInSight() {
  QList<QWidget*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && !widget->isMinimized() && widget->windowType() != Qt::ToolTip)
      windows.append(widget);
  const auto height = [](const QWidget* widget) {
    if (widget == QApplication::activeModalWidget()) return 2;
    return widget->windowType() == Qt::Window ? 0 : widget->windowType() == Qt::Popup ? 3 : 1;
  };
  std::ranges::stable_sort(windows, {}, height);
  return windows;
}

// The virtual display has nobody who gives windows a title bar.
QRect titleBar(const QWidget* window) {
  const bool hasTitle = !window->windowTitle().isEmpty() && window->windowType() != Qt::Popup;
  const QRect place = window->geometry();
  return {place.left(), place.top() - barHeight, place.width(), hasTitle ? barHeight : 0};
}

void paintTitleBar(QPainter& painter, const QWidget* window) {
  const QRect bar = titleBar(window);
  if (bar.isEmpty()) return;
  const QPalette palette = window->palette();
  QFont font = window->font();
  font.setBold(true);
  painter.fillRect(bar, palette.color(QPalette::Window).darker(112));
  painter.setFont(font);
  painter.setPen(palette.color(QPalette::WindowText));
  painter.drawText(bar, Qt::AlignCenter, window->windowTitle());
}

void paintShadow(QPainter& painter, const QRect& window) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 8));
  for (int width = shadow; width > 0; --width)
    painter.drawRoundedRect(window.adjusted(-width, -width + 3, width, width + 3), width, width);
}

int rowOf(const QAbstractItemView& list, const QString& text) {
  for (int row = 0; row < list.model()->rowCount(); ++row)
    if (list.model()->index(row, 0).data().toString().trimmed() == text) return row;
  return -1;
}

struct DropPlace {
  QPointer<QWindow> window;
  QPoint place;
} dropPlace;

}  // namespace

Stage::Stage(QString folder, int firstNumber) : folder_(std::move(folder)), number_(firstNumber) {}

Stage& Stage::when(Ready ready, Act act) {
  steps_.push_back({std::move(ready), std::move(act)});
  return *this;
}

Stage& Stage::then(Act act) {
  return when([] { return true; }, std::move(act));
}

Stage& Stage::picture(const QString& name, Ready ready) {
  // Ready and then still ready for long enough to be painted.
  return when(
      [this, ready = std::move(ready), painted = 0]() mutable {
        painted = !ready || ready() ? painted + 1 : 0;
        return painted > paintTicks;
      },
      [this, name] { save(name); });
}

Stage& Stage::pictureAtOnce(const QString& name, Ready ready) {
  return when(std::move(ready), [this, name] { save(name); });
}

void Stage::play(Act onEnd) {
  onEnd_ = std::move(onEnd);
  // Out of the way, so that nothing lights up under it.
  QCursor::setPos(QApplication::primaryScreen()->geometry().bottomRight());
  tick();
}

void Stage::tick() {
  if (steps_.empty()) return onEnd_();
  // The next tick is due before this step acts, since the step may wait in a loop of its own.
  QTimer::singleShot(tickMilliseconds, this, [this] { tick(); });
  if (!steps_.front().ready()) {
    if (++waited_ < patienceTicks) return;
    std::fprintf(stderr, "tour: a step never got ready; picture %d comes next\n", number_);
    succeeded_ = false;
    waited_ = 0;
    steps_.pop_front();
    return;
  }
  waited_ = 0;
  const Act act = std::move(steps_.front().act);
  steps_.pop_front();
  act();
}

void Stage::save(const QString& name) {
  const QList<QWidget*> windows = windowsInSight();
  QRect all;
  for (const QWidget* window : windows) all |= window->geometry() | titleBar(window);
  all.adjust(-margin, -margin, margin, margin);
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap picture(all.size() * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(QColor(0x8a, 0x93, 0x9c));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-all.topLeft());
  for (QWidget* window : windows) {
    const QRect bar = titleBar(window);
    paintShadow(painter, bar.isEmpty() ? window->geometry() : window->geometry() | bar);
    paintTitleBar(painter, window);
    painter.drawPixmap(window->geometry().topLeft(), window->grab());
  }
  painter.end();
  const QString path =
      QStringLiteral("%1/%2-%3.png").arg(folder_).arg(number_++, 2, 10, QChar(u'0')).arg(name);
  if (picture.save(path)) return;
  std::fprintf(stderr, "tour: cannot write %s\n", qPrintable(path));
  succeeded_ = false;
}

QWidget* Stage::find(const QString& name) {
  const QList<QWidget*> windows = windowsInSight();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window)
    for (QWidget* widget : (*window)->findChildren<QWidget*>())
      if (widget->accessibleName() == name && widget->isVisible()) return widget;
  return nullptr;
}

bool Stage::sees(const QString& title) {
  return std::ranges::any_of(windowsInSight(),
                             [&](QWidget* window) { return window->windowTitle() == title; });
}

void Stage::press(const QString& name) {
  auto* button = qobject_cast<QAbstractButton*>(find(name));
  if (!button) return;
  auto* withMenu = qobject_cast<QPushButton*>(button);
  if (withMenu && withMenu->menu())
    withMenu->menu()->popup(withMenu->mapToGlobal(QPoint(0, withMenu->height())));
  else
    QTest::mouseClick(button, Qt::LeftButton);
}

void Stage::answer(const QString& name) {
  QWidget* box = QApplication::activeModalWidget();
  if (!box) return;
  for (auto* button : box->findChildren<QAbstractButton*>())
    if (plain(button->text()) == name) return button->click();
}

void Stage::choose(const QString& entry) {
  for (QWidget* window : windowsInSight())
    for (QMenu* menu : window->findChildren<QMenu*>())
      for (QAction* action : menu->actions()) {
        if (plain(action->text()) != entry || !action->isEnabled()) continue;
        menu->close();
        return action->trigger();
      }
}

void Stage::clickRow(const QString& list, int row, Qt::KeyboardModifiers modifiers) {
  auto* view = qobject_cast<QAbstractItemView*>(find(list));
  if (!view) return;
  const QModelIndex index = view->model()->index(row, 0);
  view->scrollTo(index);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(index).center());
}

Stage& Stage::click(const QString& list, const QString& text) {
  const auto row = [list, text] {
    auto* view = qobject_cast<QAbstractItemView*>(find(list));
    return view && !QApplication::activeModalWidget() ? rowOf(*view, text) : -1;
  };
  return when([row] { return row() >= 0; }, [list, row] { clickRow(list, row()); });
}

void Stage::doubleClickRow(const QString& list, int row) {
  clickRow(list, row);
  auto* view = qobject_cast<QAbstractItemView*>(find(list));
  if (!view) return;
  const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
}

void Stage::type(const QString& box, const QString& text) {
  auto* line = qobject_cast<QLineEdit*>(find(box));
  if (!line) return;
  line->window()->activateWindow();
  line->setFocus();
  line->selectAll();
  QTest::keyClicks(line, text);
}

void Stage::fill(const QString& text) {
  QWidget* box = QApplication::activeModalWidget();
  auto* line = box ? box->findChild<QLineEdit*>() : nullptr;
  if (!line) return;
  line->selectAll();
  QTest::keyClicks(line, text);
}

void Stage::beginDrag(const QString& list, const QString& text) {
  auto* view = qobject_cast<QAbstractItemView*>(find(list));
  if (!view) return;
  const QModelIndex index = view->model()->index(rowOf(*view, text), 0);
  QWidget* window = view->window();
  const QPoint place = view->viewport()->mapTo(window, view->visualRect(index).center());
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, place);
  for (const int way : {8, 30}) QTest::mouseMove(window->windowHandle(), place - QPoint(0, way));
}

void Stage::dragOver(const QString& list) {
  QWidget* target = find(list);
  if (!target) return;
  QWidget* window = target->window();
  const QPoint place = target->mapTo(window, target->rect().center());
  for (const QPoint& step : {QPoint(8, 8), QPoint()}) QTest::mouseMove(window->windowHandle(), place - step);
  dropPlace = {window->windowHandle(), place};
}

void Stage::endDrag() {
  if (dropPlace.window) QTest::mouseRelease(dropPlace.window, Qt::LeftButton, {}, dropPlace.place);
}

}  // namespace velmora::qt
