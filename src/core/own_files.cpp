#include "core/own_files.h"

#include <cstdint>

#include "core/number_text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::core {

namespace {

constexpr BytesView byteOrderMark = "\xEF\xBB\xBF";

Bytes readTwice(platform::Files& files, const Text& path) {
  try {
    return files.readAll(path);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return files.readAll(path);
  }
}

}  // namespace

Bytes readOwn(platform::Files& files, const Text& path) {
  Bytes content = readTwice(files, path);
  if (content.starts_with(byteOrderMark)) content.erase(0, byteOrderMark.size());
  return content;
}

Text moveAside(platform::Files& files, const Text& path) {
  Text kept = path + u".kept";
  for (std::int64_t number = 2; files.fileExists(kept) || files.folderExists(kept); ++number)
    kept = path + u".kept" + plain(number);
  if (files.folderExists(path))
    files.moveFolder(path, kept);
  else
    files.move(path, kept);
  return kept;
}

}  // namespace velmora::core
