#include "qt/list_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "qt/row_delegate.h"

namespace velmora::qt {

namespace {

// Never at a painting: a command must not run in the middle of one.
bool mayChangeList(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::Show:
      return true;
    default:
      return false;
  }
}

}  // namespace

ListView::ListView(QWidget* parent) : QListView(parent) {
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  setMouseTracking(true);  // rows light up under the mouse
  setItemDelegate(new RowDelegate(this));
}

int ListView::rowHeight() const {
  return std::max(1, sizeHintForIndex(model()->index(0, 0)).height());
}

int ListView::topRow() const {
  if (!model() || model()->rowCount() == 0) return 0;
  return std::min(verticalOffset() / rowHeight(), model()->rowCount() - 1);
}

void ListView::setTopRow(int row) {
  if (!model() || row < 0 || row >= model()->rowCount()) return;
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(row * rowHeight());
}

bool ListView::event(QEvent* event) {
  const bool handled = QListView::event(event);
  if (afterEvent && mayChangeList(event->type())) afterEvent();
  return handled;
}

bool ListView::viewportEvent(QEvent* event) {
  const bool handled = QListView::viewportEvent(event);
  if (afterEvent && mayChangeList(event->type())) afterEvent();
  return handled;
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (onKey && onKey(*event)) return;
  QListView::keyPressEvent(event);
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  if (!keepPlace) return QListView::currentChanged(current, previous);
  update(previous);
  update(current);
}

void ListView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!emptyState || (model() && model()->rowCount() > 0)) return;
  const EmptyState state = emptyState();
  QPainter painter(viewport());
  QFont strong = font();
  strong.setPointSizeF(strong.pointSizeF() * 1.2);
  strong.setBold(true);
  const int width = std::min(viewport()->width() - 48, 360);
  const auto heightOf = [width](const QFont& of, const QString& text) {
    return QFontMetrics(of).boundingRect(QRect(0, 0, width, 10000), Qt::TextWordWrap, text).height();
  };
  const int titleHeight = heightOf(strong, state.title);
  const int hintHeight = heightOf(font(), state.hint);
  QRect place((viewport()->width() - width) / 2,
              (viewport()->height() - titleHeight - 8 - hintHeight) * 2 / 5, width, titleHeight);
  painter.setFont(strong);
  painter.setPen(palette().color(QPalette::Text));
  painter.setOpacity(0.75);
  painter.drawText(place, Qt::AlignHCenter | Qt::TextWordWrap, state.title);
  painter.setFont(font());
  painter.setOpacity(0.6);
  place.moveTop(place.bottom() + 8);
  place.setHeight(hintHeight + 4);
  painter.drawText(place, Qt::AlignHCenter | Qt::TextWordWrap, state.hint);
}

}  // namespace velmora::qt
