#include "qt/year_popup.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "qt/bind.h"
#include "qt/grid.h"
#include "qt/list_view.h"

namespace velmora::qt {

namespace {

constexpr QSize popupSize(60 * unit, 90 * unit);

}  // namespace

YearPopup::YearPopup(Refresher& refresher, ui::YearFrame& years, QWidget* button)
    : QFrame(button, Qt::Popup), years_(years), button_(button) {
  setFrameShape(QFrame::StyledPanel);
  setFixedSize(popupSize);
  QVBoxLayout* layout = column(this, 0);
  layout->setContentsMargins(1, 1, 1, 1);

  auto* list = described(new ListView, "Years", "");
  auto* title = heading("Select Years");
  title->setContentsMargins(edge, gap, edge, gap);
  layout->addWidget(title);
  layout->addWidget(line());
  layout->addWidget(list, 1);
  layout->addWidget(line());
  QPushButton* ok = described(qt::button("&OK"), "Apply years", "Show what bears one of the selected years");
  QPushButton* cancel = described(qt::button("&Cancel"), "Cancel years", "Leave the filter as it was");
  QHBoxLayout* buttons = dialogButtons({ok, cancel});
  buttons->setContentsMargins(gap, gap, gap, gap);
  layout->addLayout(buttons);

  bindList(refresher, years.List9, list);
  bindButton(refresher, years.ok, ok);
  bindButton(refresher, years.cancel, cancel);
  bindControl(refresher, years.frame, this);
  setFocusProxy(list);
}

void YearPopup::showEvent(QShowEvent* event) {
  const QRect room = button_->screen()->availableGeometry();
  QPoint place = button_->mapToGlobal(QPoint(0, button_->height() + tight));
  place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() + 1 - width())));
  place.setY(std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
  move(place);
  QFrame::showEvent(event);
  setFocus(Qt::PopupFocusReason);
}

// The model says when it closes.
void YearPopup::closeEvent(QCloseEvent* event) {
  event->ignore();
  years_.cancel.click();
}

void YearPopup::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return years_.cancel.click();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return years_.ok.click();
    default:
      return QFrame::keyPressEvent(event);
  }
}

}  // namespace velmora::qt
