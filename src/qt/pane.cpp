#include "qt/pane.h"

#include <QPainter>

#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int barHeight = 13 * unit;

class Handle final : public QSplitterHandle {
 public:
  using QSplitterHandle::QSplitterHandle;

 protected:
  void paintEvent(QPaintEvent*) override {
    QRect middle = rect();
    middle.setLeft(middle.center().x());
    middle.setWidth(1);
    QPainter(this).fillRect(middle, lineColour(palette()));
  }
};

QHBoxLayout* bar(QVBoxLayout* column) {
  auto* widget = new QWidget;
  widget->setMinimumHeight(barHeight);
  QHBoxLayout* layout = row(widget);
  layout->setContentsMargins(edge, gap, edge, gap);
  column->addWidget(widget);
  return layout;
}

}  // namespace

Pane::Pane() {
  column_ = column(this, 0);
  header_ = bar(column_);
  column_->addWidget(line());
  column_->addWidget(line());
  footer_ = bar(column_);
}

void Pane::setContent(QWidget* content) {
  column_->insertWidget(2, content, 1);
}

PaneSplitter::PaneSplitter() : QSplitter(Qt::Horizontal) {
  setChildrenCollapsible(false);
  setHandleWidth(1);
}

QSplitterHandle* PaneSplitter::createHandle() {
  return new Handle(orientation(), this);
}

}  // namespace velmora::qt
