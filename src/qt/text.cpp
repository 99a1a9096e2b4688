#include "qt/text.h"

#include <QDir>

namespace velmora::qt {

QString shown(TextView text) {
  QString result = toQString(text);
  for (qsizetype at = 0; at < result.size(); ++at) {
    const QChar unit = result[at];
    if (unit.isHighSurrogate() && at + 1 < result.size() && result[at + 1].isLowSurrogate()) {
      ++at;
    } else if (unit.isSurrogate()) {
      result[at] = QChar::ReplacementCharacter;
    } else if (unit.category() == QChar::Other_Control) {
      result[at] = u' ';
    }
  }
  return result;
}

QString shownFolder(TextView folder) {
  QString result = shown(folder);
  if (result.size() > 1 && result.endsWith(QDir::separator())) result.chop(1);
  const QString home = QDir::toNativeSeparators(QDir::homePath());
  if (home.size() > 1 && result.startsWith(home) &&
      (result.size() == home.size() || result[home.size()] == QDir::separator()))
    result.replace(0, home.size(), QStringLiteral("~"));
  return result;
}

}  // namespace velmora::qt
