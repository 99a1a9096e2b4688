#pragma once

#include <QString>

#include "platform/text.h"

namespace velmora::qt {

/// The same UTF-16 units on both sides, so that a text survives the round trip whatever it holds.
inline QString toQString(TextView text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}
inline Text toText(const QString& text) {
  return text.toStdU16String();
}

/// A path or name as it is drawn: bytes that are no valid UTF-8 show as U+FFFD, control characters as blanks.
/// Never use what this returns to find a file.
QString shown(TextView text);

/// The folder with the user's home folder written as "~".
QString shownFolder(TextView folder);

}  // namespace velmora::qt
