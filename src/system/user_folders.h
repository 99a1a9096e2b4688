#pragma once

#include "platform/text.h"

namespace velmora::system {

/// $XDG_DATA_HOME where that is a full path, else ~/.local/share. Not made.
Text dataHome();
/// The folder of the running program, with links resolved.
Text executableFolder();

}  // namespace velmora::system
