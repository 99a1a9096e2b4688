#include "qt/list_model.h"

#include <algorithm>

#include "core/paths.h"
#include "qt/text.h"

namespace velmora::qt {

ListModel::ListModel(ui::ListBox& list, Rows rows, QObject* parent)
    : QAbstractListModel(parent), list_(list), rows_(rows), count_(list.ListCount()) {
  list_.takeSplice();  // what happened before there was a view
}

void ListModel::refresh() {
  const ui::ListBox::Splice splice = applied_ = list_.takeSplice();
  const int kept = std::min(splice.removed, splice.inserted);
  if (splice.removed > kept) {
    beginRemoveRows({}, splice.first + kept, splice.first + splice.removed - 1);
    count_ -= splice.removed - kept;
    applied_ = {};
    endRemoveRows();
  } else if (splice.inserted > kept) {
    beginInsertRows({}, splice.first + kept, splice.first + splice.inserted - 1);
    count_ += splice.inserted - kept;
    applied_ = {};
    endInsertRows();
  }
  applied_ = {};
  if (kept > 0) Q_EMIT dataChanged(index(splice.first), index(splice.first + kept - 1));
}

// Where a row that the views know stands in a list that may have changed since they were told.
int ListModel::indexInList(int row) const {
  const ui::ListBox::Splice& splice = applied_.empty() ? list_.pendingSplice() : applied_;
  if (row < splice.first + std::min(splice.removed, splice.inserted)) return row;
  if (row < splice.first + splice.removed) return -1;
  return row - splice.removed + splice.inserted;
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count_) return {};
  const Text& text = list_.List(indexInList(index.row()));
  switch (role) {
    case Qt::DisplayRole:
      return shown(rows_ == Rows::Paths ? core::paths::fileName(text) : TextView(text));
    case FolderRole:
      return rows_ == Rows::Paths ? shownFolder(core::paths::folderPart(text)) : QString();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      return shown(text);
    default:
      return {};
  }
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  const bool canBeDragged = !list_.dragWord.empty() || list_.dragFiles;
  return QAbstractListModel::flags(index) | (canBeDragged ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

}  // namespace velmora::qt
