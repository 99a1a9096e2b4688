#pragma once

#include "ui/controls.h"

class QWidget;

namespace velmora::qt {

/// Lets folders of this machine be dropped anywhere on a window: `model` hears of them when the drag is over.
/// Only copies are taken, so that no other program removes what was dropped. Call it when the window has all
/// its widgets.
void takeDroppedFolders(ui::FolderBox& model, QWidget* window);

}  // namespace velmora::qt
