#pragma once

#include <QWidget>

#include "qt/list_view.h"
#include "qt/refresher.h"
#include "ui/form1.h"

namespace velmora::qt {

/// The commands on all selected files, in the order of a user's work: names, tags, delete, and the way back.
/// Those that do not fit are behind an arrow at the end.
QWidget* makeRepairBar(Refresher& refresher, ui::Form1& form1);

/// What belongs beside the name box.
QWidget* makeNameTools(Refresher& refresher, ui::RepairTools& tools);

/// The right-click menu of the file list, and Ctrl+Z in it.
void addFileMenu(Refresher& refresher, ui::Form1& form1, ListView* list);

}  // namespace velmora::qt
