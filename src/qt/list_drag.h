#pragma once

#include <memory>
#include <vector>

#include <QMimeData>

#include "ui/list_box.h"

/// What drags carry: between the program's own lists the word of the list, to and from other programs the
/// paths of files and folders.
namespace velmora::qt {

/// What a drag of the selected rows carries; nothing where the list tells neither word nor files.
std::unique_ptr<QMimeData> carriedBy(const ui::ListBox& list);
/// The word of the list that a drag comes from; empty when it comes from no list of this process.
Text wordIn(const QMimeData& data);

/// The paths as the list of addresses that file managers read, byte by byte, so that names that are no valid
/// UTF-8 survive.
QByteArray addressesOf(const std::vector<Text>& paths);
/// The paths of the folders on this machine among the addresses that a drag carries.
std::vector<Text> foldersIn(const QMimeData& data);

}  // namespace velmora::qt
