#pragma once

#include <QWidget>

#include "qt/refresher.h"
#include "ui/form1.h"

namespace velmora::qt {

/// The preview player in one row: its buttons, how far it is, and its sound.
QWidget* makePlayerBar(Refresher& refresher, ui::Form1& form1);

}  // namespace velmora::qt
