#pragma once

#include "qt/tour/stage.h"
#include "ui/windows.h"

namespace velmora::qt {

/// Shows the program as it was left in dark colours, at the scale of 2.0 and with large type, each in a child
/// process on a display of its own in memory. Pictures are numbered from `firstNumber` on.
bool showOtherLooks(const QString& pictures, int firstNumber);
/// What a child shows.
void addLook(Stage& stage, ui::Windows& windows, const QString& look);

}  // namespace velmora::qt
