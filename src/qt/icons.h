#pragma once

#include <QIcon>

namespace velmora::qt {

/// One of the program's own icons, by the name of its file under resources/icons. It is drawn sharp at any
/// size, in the colour of the text around it, so it fits light and dark palettes.
QIcon glyph(const QString& name);

/// The icon of the program.
QIcon programIcon();

}  // namespace velmora::qt
