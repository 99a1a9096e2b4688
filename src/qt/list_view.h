#pragma once

#include <functional>
#include <memory>

#include <QListView>

class QMimeData;

namespace velmora::qt {

/// What a list shows while it has no rows.
struct EmptyState {
  QString title;
  QString hint;
};

/// A list of equal rows that draws a hint while it is empty, and lets its binding act after each event rather
/// than from within the toolkit's own handling of it.
class ListView : public QListView {
  Q_OBJECT

 public:
  explicit ListView(QWidget* parent = nullptr);

  /// Asked at each painting of the empty list.
  std::function<EmptyState()> emptyState;
  /// Offered each key first; true when it was used up.
  std::function<bool(const QKeyEvent&)> onKey;
  /// After each mouse or key event that the list handled, and after it was shown.
  std::function<void()> afterEvent;
  /// What a drag of the selected rows carries; nothing where they cannot be dragged.
  std::function<std::unique_ptr<QMimeData>()> carried;
  /// Whether what another list of this program carries may be dropped here.
  std::function<bool(const QMimeData&)> accepts;
  /// Called with what was dropped, when the drag is over and done with.
  std::function<void(const QMimeData&)> onDropped;
  /// What a row of no text shows, dimmed.
  QString emptyRow;
  /// While this is true a new current row is not scrolled to.
  bool keepPlace = false;

  /// First row in sight; 0 for an empty list.
  int topRow() const;
  void setTopRow(int row);
  /// How many rows fit into the view.
  int wholeRows() const { return viewport()->height() / rowHeight(); }

  QSize sizeHint() const override { return {240, 200}; }
  QSize minimumSizeHint() const override { return {160, 96}; }

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void startDrag(Qt::DropActions actions) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  int rowHeight() const;
  void paintEmptyState();
  void setUnderDrag(bool underDrag);

  bool underDrag_ = false;  // something hovers that may be dropped here
};

}  // namespace velmora::qt
