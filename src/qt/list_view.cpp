#include "qt/list_view.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>

#include "qt/grid.h"
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

constexpr int chipWidth = 60 * unit;  // of what hangs under the mouse while it drags

// The first of the dragged rows, and how many more there are.
QPixmap chip(const QListView& view, const QModelIndexList& rows) {
  const QModelIndex first = *std::ranges::min_element(rows, {}, &QModelIndex::row);
  QString more = rows.size() > 1 ? QStringLiteral("+%1").arg(rows.size() - 1) : QString();
  const QFontMetrics metrics = view.fontMetrics();
  const int moreWidth = more.isEmpty() ? 0 : metrics.horizontalAdvance(more) + 3 * unit;
  const QString name =
      metrics.elidedText(first.data().toString(), Qt::ElideRight, chipWidth - 4 * unit - moreWidth);
  const QSize size(metrics.horizontalAdvance(name) + 4 * unit + moreWidth, metrics.height() + 3 * unit);
  QPixmap picture(size * view.devicePixelRatioF());
  picture.setDevicePixelRatio(view.devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(view.font());
  painter.setPen(Qt::NoPen);
  painter.setBrush(view.palette().color(QPalette::Highlight));
  painter.drawRoundedRect(QRect(QPoint(), size), unit, unit);
  painter.setPen(view.palette().color(QPalette::HighlightedText));
  const QRect inner = QRect(QPoint(), size).adjusted(2 * unit, 0, -2 * unit, 0);
  painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
  painter.setOpacity(0.8);
  painter.drawText(inner, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, more);
  return picture;
}

/// A drop may start a long command with questions of its own. It has to wait until the drag has ended, which
/// takes its turn in a loop within `startDrag`.
struct Drag {
  bool goesOn = false;
  std::function<void()> drop;
  void end() {
    goesOn = false;
    if (const auto act = std::exchange(drop, nullptr))
      QMetaObject::invokeMethod(qApp, act, Qt::QueuedConnection);
  }
};

Drag& theDrag() {
  static Drag drag;
  return drag;
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
  if (emptyState && !(model() && model()->rowCount() > 0)) paintEmptyState();
  if (!underDrag_) return;
  QPainter painter(viewport());
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void ListView::paintEmptyState() {
  const EmptyState state = emptyState();
  QPainter painter(viewport());
  QFont strong = font();
  strong.setPointSizeF(strong.pointSizeF() * 1.2);
  strong.setBold(true);
  const int width = std::min(viewport()->width() - 8 * unit, 90 * unit);
  if (width < 20 * unit) return;
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

// The selection of the list with the focus stands out among neighbours.
void ListView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  viewport()->update();
}

void ListView::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  viewport()->update();
}

void ListView::startDrag(Qt::DropActions) {
  theDrag().goesOn = true;
  const QModelIndexList rows = selectedIndexes();
  if (std::unique_ptr<QMimeData> content = carried && !rows.isEmpty() ? carried() : nullptr) {
    auto* drag = new QDrag(this);
    drag->setMimeData(content.release());
    drag->setPixmap(chip(*this, rows));
    drag->setHotSpot({-2 * unit, -2 * unit});
    drag->exec(Qt::CopyAction);  // so that nobody takes away what was dragged
  }
  theDrag().end();
}

void ListView::setUnderDrag(bool underDrag) {
  underDrag_ = underDrag;
  viewport()->update();
}

void ListView::dragEnterEvent(QDragEnterEvent* event) {
  const bool fits = accepts && accepts(*event->mimeData());
  setUnderDrag(fits);
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(fits);
}

void ListView::dragMoveEvent(QDragMoveEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(underDrag_);
}

void ListView::dragLeaveEvent(QDragLeaveEvent*) {
  setUnderDrag(false);
}

void ListView::dropEvent(QDropEvent* event) {
  if (!std::exchange(underDrag_, false)) return event->ignore();
  viewport()->update();
  event->setDropAction(Qt::CopyAction);
  event->accept();
  const auto copy = std::make_shared<QMimeData>();
  for (const QString& format : event->mimeData()->formats())
    copy->setData(format, event->mimeData()->data(format));
  theDrag().drop = [view = QPointer(this), copy] {
    if (view && view->onDropped) view->onDropped(*copy);
  };
  if (!theDrag().goesOn) theDrag().end();
}

}  // namespace velmora::qt
