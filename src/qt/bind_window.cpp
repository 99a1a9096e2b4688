#include "qt/bind_window.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWindow>

#include "qt/text.h"
#include "qt/twips.h"

namespace velmora::qt {

namespace {

// What the window manager's frame may take beyond the widget itself.
constexpr QMargins frame(0, 0, 8, 36);

class WindowBinding final : public QObject {
 public:
  WindowBinding(Refresher& refresher, ui::Window& model, QWidget* widget, QSize size)
      : QObject(widget), model_(model), widget_(widget), size_(size) {
    widget->installEventFilter(this);
    refresher.watch(model, this, [this] { refresh(); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Close:
        event->ignore();
        model_.closeRequest();
        return true;
      case QEvent::WindowActivate:
        if (model_.onActivate) model_.onActivate();
        return false;
      case QEvent::WindowDeactivate:
        if (model_.onDeactivate) model_.onDeactivate();
        return false;
      case QEvent::WindowStateChange:
        reportState();
        return false;
      case QEvent::Move:
      case QEvent::Resize:
        reportPlacement();
        return false;
      default:
        return false;
    }
  }

 private:
  void refresh() {
    refreshing_ = true;
    if (const QString caption = shown(model_.caption()); widget_->windowTitle() != caption)
      widget_->setWindowTitle(caption);
    // A place is that of a window in its normal state.
    const bool normal = model_.state() == ui::WindowState::Normal;
    if (normal) showState();
    showPlacement();
    if (!normal) showState();
    if (widget_->isVisible() != model_.visible()) widget_->setVisible(model_.visible());
    if (model_.frontRequests() != frontRequests_ && model_.visible()) {
      widget_->raise();
      widget_->activateWindow();
    }
    frontRequests_ = model_.frontRequests();
    refreshing_ = false;
    // Showing a window may have given it another place than it was told.
    reportPlacement();
  }

  ui::Placement placement() const {
    return {toTwips(widget_->x(), widget_), toTwips(widget_->y(), widget_),
            toTwips(widget_->width(), widget_), toTwips(widget_->height(), widget_)};
  }

  void showPlacement() {
    const ui::Placement& wanted = model_.placement();
    if (placed_ && (wanted == shown_ || stateOf(widget_) != ui::WindowState::Normal)) return;
    placed_ = true;
    shown_ = wanted;
    QRect place(toPixels(wanted.left, widget_), toPixels(wanted.top, widget_),
                toPixels(wanted.width, widget_), toPixels(wanted.height, widget_));
    const bool sized = wanted.width > 0 && wanted.height > 0;
    const bool moved = sized || wanted.left != 0 || wanted.top != 0;
    if (!sized && size_.isEmpty()) return;  // a dialog finds its size and place by itself
    if (!sized) place.setSize(size_);
    const QScreen* screen = moved ? QGuiApplication::screenAt(place.center()) : nullptr;
    // The place is that of the frame, the size that of the widget within.
    const QRect room = (screen ? screen : widget_->screen())->availableGeometry().marginsRemoved(frame);
    place.setSize(place.size().expandedTo(widget_->minimumSizeHint()).boundedTo(room.size()));
    if (!moved) place.moveCenter(room.center());
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    widget_->move(place.topLeft());
    widget_->resize(place.size());
  }

  void showState() {
    const Qt::WindowStates flags = Qt::WindowMinimized | Qt::WindowMaximized;
    Qt::WindowStates wanted = widget_->windowState() & ~flags;
    if (model_.state() == ui::WindowState::Minimised) wanted |= Qt::WindowMinimized;
    if (model_.state() == ui::WindowState::Maximised) wanted |= Qt::WindowMaximized;
    if (widget_->windowState() != wanted && stateOf(widget_) != model_.state())
      widget_->setWindowState(wanted);
  }

  static ui::WindowState stateOf(const QWidget* widget) {
    if (widget->isMinimized()) return ui::WindowState::Minimised;
    return widget->isMaximized() ? ui::WindowState::Maximised : ui::WindowState::Normal;
  }

  void reportState() {
    if (!refreshing_) model_.setState(stateOf(widget_));
  }

  void reportPlacement() {
    if (refreshing_ || !widget_->isVisible() || stateOf(widget_) != ui::WindowState::Normal) return;
    shown_ = placement();
    model_.setPlacement(shown_);
    // Not every system tells.
    if (const int frameHeight = widget_->frameGeometry().height() - widget_->height(); frameHeight > 0)
      model_.setFrameHeight(toTwips(frameHeight, widget_));
  }

  ui::Window& model_;
  QWidget* widget_;
  QSize size_;
  ui::Placement shown_;
  int frontRequests_ = 0;
  bool placed_ = false;
  bool refreshing_ = false;
};

}  // namespace

DialogWindow::DialogWindow() {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void DialogWindow::setVisible(bool visible) {
  if (visible && isHidden()) {
    if (!testAttribute(Qt::WA_Resized)) adjustSize();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->windowType() != Qt::Window || !widget->isVisible() || widget->isMinimized()) continue;
      winId();
      windowHandle()->setTransientParent(widget->windowHandle());
      const QRect owner = widget->geometry();
      move(owner.center() - QPoint(width() / 2, height() * 3 / 5));
      if (widget->isActiveWindow()) break;
    }
  }
  QDialog::setVisible(visible);
  if (visible) activateWindow();
}

void bindWindow(const ViewContext& context, ui::Window& model, QWidget* widget, QSize size) {
  new WindowBinding(context.refresher, model, widget, size);
  context.gate.guard(widget, model);
}

}  // namespace velmora::qt
