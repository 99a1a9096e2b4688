#pragma once

class QApplication;

namespace velmora::qt {

/// The system's style, palette and fonts are used as they are. Where the environment variable VELMORA_THEME
/// says "dark" or "light", the toolkit's own style and a palette of that kind take their place: for
/// screenshots and for desktops that tell programs nothing.
void applyTheme(QApplication& application);

}  // namespace velmora::qt
