#include "base/trash_files.h"

#include <algorithm>

#include "base/folder_walk.h"
#include "core/paths.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::base {

namespace {

void collect(FolderWalk& walk, const Text& folder, std::vector<Text>& paths) {
  const FolderWalk::Level level = walk.enter(folder);
  for (const Text& name : level.files) paths.push_back(core::paths::join(folder, name));
  for (const Text& name : level.folders) collect(walk, core::paths::join(folder, name), paths);
}

}  // namespace

std::vector<Text> TrashFiles::CollectDelete(const Text& folder) {
  std::vector<Text> paths;
  FolderWalk walk(parts_.files, FolderWalk::Links::AreFiles);
  collect(walk, folder, paths);
  return paths;
}

void TrashFiles::Delete(const std::vector<Text>& paths) {
  for (std::size_t i = 0; i < paths.size() && !parts_.table.Stop; ++i) {
    const Text& path = paths[i];
    if (onDeleting) onDeleting(path);
    if (parts_.player.holds(path)) parts_.player.close();
    try {
      parts_.trash.send(path);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // It stays, and its folder with it.
    }
    parts_.progress.UpdateProgress(100.0 * static_cast<double>(i + 1) / static_cast<double>(paths.size()));
  }
}

}  // namespace velmora::base
