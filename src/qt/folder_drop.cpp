#include "qt/folder_drop.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QPainter>

#include "qt/grid.h"
#include "qt/list_drag.h"

namespace velmora::qt {

namespace {

/// Lies over the window while folders hover above it, and says what will become of them.
class DropSign final : public QLabel {
 public:
  explicit DropSign(QWidget* window) : QLabel("Drop to add the music in here to the list", window) {
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    scaled(this, 1.3);
    hide();
  }
  void open() {
    setGeometry(parentWidget()->rect());
    raise();
    show();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(0.85F);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
    painter.drawRoundedRect(rect().adjusted(edge, edge, -edge, -edge), gap, gap);
    painter.end();
    QLabel::paintEvent(event);
  }
};

class FolderDrop final : public QObject {
 public:
  FolderDrop(ui::FolderBox& model, QWidget* window)
      : QObject(window), model_(model), window_(window), sign_(new DropSign(window)) {
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    // Boxes that take dropped text would take the address of a folder for such.
    for (QWidget* child : window->findChildren<QWidget*>())
      if (child->acceptDrops()) child->installEventFilter(this);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove:
      case QEvent::Drop:
        return object == window_ ? atWindow(static_cast<QDropEvent&>(*event))
                                 : leaveToWindow(static_cast<QDropEvent&>(*event));
      case QEvent::DragLeave:
        sign_->hide();
        return false;
      default:
        return false;
    }
  }

 private:
  bool welcome(const QDropEvent& event) const {
    return model_.onDropFolders && (event.possibleActions() & Qt::CopyAction) &&
           !foldersIn(*event.mimeData()).empty();
  }

  // What is no folder goes its usual way.
  bool leaveToWindow(QDropEvent& event) const {
    if (!welcome(event)) return false;
    event.ignore();
    return true;
  }

  bool atWindow(QDropEvent& event) {
    // Reading the addresses touches the disk: once for each drag is enough.
    if (event.type() == QEvent::DragEnter) welcome_ = welcome(event);
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(welcome_);
    if (!welcome_) return true;
    if (event.type() == QEvent::DragEnter) sign_->open();
    if (event.type() == QEvent::Drop) drop(foldersIn(*event.mimeData()));
    return true;
  }

  // The other program waits until the drop is done with, which a long command must not hold up.
  void drop(const std::vector<Text>& folders) {
    sign_->hide();
    QMetaObject::invokeMethod(
        this,
        [this, folders] {
          if (model_.onDropFolders && model_.enabled()) model_.onDropFolders(folders);
        },
        Qt::QueuedConnection);
  }

  ui::FolderBox& model_;
  QWidget* window_;
  DropSign* sign_;
  bool welcome_ = false;
};

}  // namespace

void takeDroppedFolders(ui::FolderBox& model, QWidget* window) {
  new FolderDrop(model, window);
}

}  // namespace velmora::qt
