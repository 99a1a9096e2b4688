#pragma once

#include <functional>

#include <QTreeView>

class QFileSystemModel;

namespace velmora::qt {

/// The machine's folders as a tree. Of what lies right under the root, the folders of the system itself are
/// left out, unless one of them is to be shown.
class FolderTree : public QTreeView {
  Q_OBJECT

 public:
  explicit FolderTree(QWidget* parent = nullptr);

  /// The user chose a folder, by mouse or keyboard.
  std::function<void(const QString& path)> onChosen;

  /// Expands the way to a folder, selects it and brings it into sight; for one that does not exist, its
  /// nearest parent.
  void showFolder(const QString& path);
  /// Where a tree starts that was told no folder: the user's music folder, or else the home folder.
  static QString defaultFolder();

  QSize sizeHint() const override { return {260, 300}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void reportChosen();
  void hideSystemFolders();
  void bringIntoSight();

  QFileSystemModel* model_;
  QString wanted_;  // until the user does something, the folder to keep in sight while the tree loads
  QString chosen_;
};

}  // namespace velmora::qt
