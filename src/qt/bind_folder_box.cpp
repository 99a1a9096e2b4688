#include <QDir>

#include "qt/bind.h"
#include "qt/folder_tree.h"
#include "qt/text.h"

namespace velmora::qt {

void bindFolderBox(Refresher& refresher, ui::FolderBox& model, FolderTree* widget) {
  bindControl(refresher, model, widget);
  refresher.watch(model, widget, [&model, widget] {
    // A folder box always shows some folder, so that Add has one to work on.
    if (model.path().empty()) model.setPath(toText(QDir::toNativeSeparators(FolderTree::defaultFolder())));
    widget->showFolder(QDir::fromNativeSeparators(toQString(model.path())));
  });
  widget->onChosen = [&model](const QString& path) { model.click(toText(QDir::toNativeSeparators(path))); };
}

}  // namespace velmora::qt
