#include "list/listed_files.h"

#include <utility>

#include "core/paths.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::list {

namespace paths = core::paths;

void ListedFiles::add(const Text& path) {
  const Folder& folder = folderOf(path);
  const TextView name = paths::fileName(path);
  Text real = folder.linked.contains(Text(name)) ? files_.realPath(path) : paths::join(folder.real, name);
  if (real == path)
    paths_.insert(path);
  else if (!paths_.contains(real))
    paths_.insert(own_.emplace_back(std::move(real)));
}

bool ListedFiles::add(const FoundFile& found) {
  return paths_.insert(found.realPath()).second;
}

const ListedFiles::Folder& ListedFiles::folderOf(TextView path) {
  const auto [place, added] = folders_.try_emplace(Text(paths::folderPart(path)));
  Folder& folder = place->second;
  if (!added) return folder;
  const Text asListed(paths::withoutSeparator(place->first));
  folder.real = files_.realPath(asListed);
  try {
    for (platform::FolderEntry& entry : files_.list(asListed).entries)
      if (entry.link) folder.linked.insert(std::move(entry.name));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A folder that is gone, or cannot be read, has no links that a scan could find again.
  }
  return folder;
}

}  // namespace velmora::list
