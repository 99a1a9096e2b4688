#include "qt/completion_list.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "qt/bind.h"

namespace velmora::qt {

namespace {

constexpr int longest = 10;  // rows in sight

}  // namespace

CompletionList::CompletionList(Refresher& refresher, ui::ListBox& list, QLineEdit* box, QWidget* window)
    : ListView(window), list_(list), box_(box) {
  setFrameShape(QFrame::Box);
  setFocusPolicy(Qt::NoFocus);
  setAutoFillBackground(true);
  setAccessibleName("Artists");
  setToolTip("Artists that begin like this");
  box->installEventFilter(this);
  window->installEventFilter(this);
  bindList(refresher, list, this);
  refresher.watch(list, this, [this] { place(); });
}

void CompletionList::place() {
  if (!list_.visible()) return;
  const int rows = std::clamp(list_.ListCount(), 1, longest);
  const int height = rows * sizeHintForRow(0) + 2 * frameWidth();
  const QPoint below = box_->mapTo(parentWidget(), QPoint(0, box_->height() + 1));
  setGeometry(QRect(below, QSize(box_->width(), height)));
  raise();
}

bool CompletionList::eventFilter(QObject* object, QEvent* event) {
  if (object == parentWidget() && event->type() == QEvent::Resize) place();
  if (object == box_ && list_.visible()) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape || event->type() == QEvent::FocusOut) list_.setVisible(false);
    if (escape) return true;
  }
  return ListView::eventFilter(object, event);
}

}  // namespace velmora::qt
