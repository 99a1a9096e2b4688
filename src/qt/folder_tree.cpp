#include "qt/folder_tree.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSet>
#include <QStandardPaths>
#include <QStyledItemDelegate>

#include "qt/folder_icons.h"
#include "qt/grid.h"

namespace velmora::qt {

namespace {

// A row with some air, as the rows of the lists have it.
class AiryRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(gap, 2 * tight);
  }
};

bool belongsToSystem(const QString& folderUnderRoot) {
  static const QSet<QString> names = {"bin",        "boot", "dev", "etc",  "lib", "lib32", "lib64", "libx32",
                                      "lost+found", "proc", "run", "sbin", "sys", "usr",   "var"};
  return names.contains(folderUnderRoot);
}

}  // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeView(parent), model_(new QFileSystemModel(this)) {
  // The model keeps the address of the provider, which must live as long as the model.
  auto* icons = new FolderIcons;
  connect(model_, &QObject::destroyed, [icons] { delete icons; });
  model_->setIconProvider(icons);
  model_->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
  model_->setFilter(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Drives);
  model_->setRootPath(QDir::rootPath());
  setModel(model_);
  setFrameShape(QFrame::NoFrame);
  setHeaderHidden(true);
  for (int column = 1; column < model_->columnCount(); ++column) hideColumn(column);
  setItemDelegate(new AiryRows(this));
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  setUniformRowHeights(true);
  setIndentation(4 * unit);
  setEditTriggers(NoEditTriggers);
  connect(model_, &QFileSystemModel::directoryLoaded, this, [this](const QString& folder) {
    if (folder == QDir::rootPath()) hideSystemFolders();
    bringIntoSight();
  });
  connect(model_, &QAbstractItemModel::layoutChanged, this, [this] { bringIntoSight(); });
  connect(model_, &QAbstractItemModel::rowsInserted, this, [this] { bringIntoSight(); });
  connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { wanted_.clear(); });
}

QString FolderTree::defaultFolder() {
  const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
  return !music.isEmpty() && QDir(music).exists() ? music : QDir::homePath();
}

void FolderTree::showFolder(const QString& path) {
  QString nearest = QDir::cleanPath(path);
  while (!nearest.isEmpty() && !QDir(nearest).exists()) {
    const qsizetype cut = nearest.lastIndexOf(u'/');
    nearest = cut > 0 ? nearest.left(cut) : QDir::rootPath();
  }
  if (nearest.isEmpty() || nearest == chosen_) return;
  chosen_ = wanted_ = nearest;
  hideSystemFolders();
  const QModelIndex index = model_->index(nearest);
  for (QModelIndex above = index; above.isValid(); above = above.parent()) expand(above);
  setCurrentIndex(index);
  bringIntoSight();
}

// The folders arrive from another thread and push the wanted one around.
void FolderTree::bringIntoSight() {
  if (wanted_.isEmpty()) return;
  scrollTo(currentIndex(), PositionAtCenter);
  horizontalScrollBar()->setValue(0);
}

void FolderTree::hideSystemFolders() {
  const QModelIndex root = model_->index(QDir::rootPath());
  for (int row = 0; row < model_->rowCount(root); ++row) {
    const QString name = model_->index(row, 0, root).data().toString();
    const QString path = QDir::rootPath() + name;
    const bool wanted = chosen_ == path || chosen_.startsWith(path + u'/');
    setRowHidden(row, root, belongsToSystem(name) && !wanted);
  }
}

// The only column is as wide as the view, or as its longest row.
void FolderTree::resizeEvent(QResizeEvent* event) {
  header()->setMinimumSectionSize(viewport()->width());
  QTreeView::resizeEvent(event);
}

void FolderTree::reportChosen() {
  const QString path = model_->filePath(currentIndex());
  if (path.isEmpty()) return;
  chosen_ = path;
  wanted_.clear();
  if (onChosen) onChosen(path);
}

void FolderTree::mousePressEvent(QMouseEvent* event) {
  wanted_.clear();
  QTreeView::mousePressEvent(event);
}

void FolderTree::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()) == currentIndex())
    reportChosen();
}

void FolderTree::keyPressEvent(QKeyEvent* event) {
  const QModelIndex before = currentIndex();
  QTreeView::keyPressEvent(event);
  if (currentIndex() != before) reportChosen();
}

}  // namespace velmora::qt
