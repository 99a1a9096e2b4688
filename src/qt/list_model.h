#pragma once

#include <QAbstractListModel>

#include "ui/list_box.h"

namespace velmora::qt {

/// What the rows of a list hold: a path is shown as its file name, with its folder under FolderRole.
enum class Rows { Plain, Paths };

/// The rows of a ListBox as an item model. It holds no texts of its own: it asks the list, and tells its
/// views of what changed when `refresh` is called, as one removal or insertion and never as a reset.
class ListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { FolderRole = Qt::UserRole };

  ListModel(ui::ListBox& list, Rows rows, QObject* parent = nullptr);

  /// Takes over the rows of the list. Until this call after a change of the list, the model keeps its old
  /// number of rows: those that stayed read as before, those that went read as empty.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  int indexInList(int row) const;

  ui::ListBox& list_;
  ui::ListBox::Splice applied_;  // while `refresh` tells of it
  Rows rows_;
  int count_ = 0;
};

}  // namespace velmora::qt
