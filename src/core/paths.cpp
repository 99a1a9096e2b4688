#include "core/paths.h"

#include <algorithm>

#include "core/text.h"

namespace velmora::core::paths {

const char16_t separator = u'/';

Text withSeparator(TextView folder) {
  Text out(folder);
  if (out.empty() || out.back() != separator) out += separator;
  return out;
}

TextView withoutSeparator(TextView folder) {
  while (folder.size() > 1 && folder.back() == separator) folder.remove_suffix(1);
  return folder;
}

Text join(TextView folder, TextView name) {
  Text out;
  out.reserve(folder.size() + 1 + name.size());
  out += folder;
  if (out.empty() || out.back() != separator) out += separator;
  return out += name;
}

TextView fileName(TextView path) {
  return path.substr(path.rfind(separator) + 1);  // npos + 1 is 0
}

TextView folderPart(TextView path) {
  return path.substr(0, path.rfind(separator) + 1);
}

TextView bareName(TextView path) {
  return dropRight(fileName(path), 4);
}

bool within(TextView path, TextView folder) {
  folder = withoutSeparator(folder);
  if (folder.empty() || !path.starts_with(folder)) return false;
  return path.size() == folder.size() || path[folder.size()] == separator || folder.back() == separator;
}

Text lastThree(TextView path) {
  return lower(right(path, 3));
}

bool fitsRecord(TextView name) {
  return std::ranges::none_of(name,
                              [](char16_t unit) { return unit == u'"' || unit == u'\r' || unit == u'\n'; });
}

}  // namespace velmora::core::paths
