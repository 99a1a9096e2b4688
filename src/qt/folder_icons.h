#pragma once

#include <QAbstractFileIconProvider>

#include "qt/icons.h"

namespace velmora::qt {

/// One icon and one kind for all that a folder tree sees. To ask the system about each entry would open it,
/// and to read a file of a folder that is only looked through may take long, or forever.
class FolderIcons final : public QAbstractFileIconProvider {
 public:
  QIcon icon(IconType type) const override {
    return type == Computer || type == Network ? QAbstractFileIconProvider::icon(type) : folder_;
  }
  QIcon icon(const QFileInfo&) const override { return folder_; }
  QString type(const QFileInfo&) const override { return kind_; }

 private:
  QIcon folder_ = glyph(QStringLiteral("folder"));
  QString kind_ = QStringLiteral("Folder");  // without one the model shows nothing
};

}  // namespace velmora::qt
