#include "base/folder_walk.h"

#include <utility>

#include "base/base_tree.h"
#include "core/paths.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::base {

namespace {

struct Dump {
  FolderWalk walk;
  platform::Desktop& desktop;
  const YearFilter& years;
  const std::function<void(const Text& path)>& sink;

  void run(const Text& folder) {
    FolderWalk::Level level;
    try {
      level = walk.enter(folder);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      return;
    }
    const bool taken = years.allYears() || years.passes(core::paths::withoutSeparator(folder));
    for (const Text& name : level.files) {
      if (taken) sink(core::paths::join(folder, name));
      desktop.pumpEvents();
    }
    for (const Text& name : level.folders) {
      desktop.pumpEvents();
      run(core::paths::join(folder, name));
    }
  }
};

}  // namespace

FolderWalk::Level FolderWalk::enter(const Text& folder) {
  platform::FolderListing listing = files_.list(folder);
  Level level;
  if (!walked_.insert(listing.id).second) return level;
  for (platform::FolderEntry& entry : listing.entries) {
    const bool folderToEnter =
        entry.kind == platform::EntryKind::Folder && (!entry.link || links_ == Links::AreFolders);
    auto& names = folderToEnter ? level.folders : level.files;
    names.push_back(std::move(entry.name));
  }
  return level;
}

void FolderFileDump(platform::Files& files, platform::Desktop& desktop, const YearFilter& years,
                    const Text& folder, const std::function<void(const Text& path)>& sink) {
  Dump{FolderWalk(files, FolderWalk::Links::AreFolders), desktop, years, sink}.run(folder);
}

}  // namespace velmora::base
