#pragma once

#include <QStyledItemDelegate>

namespace velmora::qt {

/// Draws a row of a ListView: of a path the file name in full colour and its folder dimmed beside it, each
/// shortened in the middle where there is no room.
class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace velmora::qt
