#pragma once

#include <functional>
#include <set>
#include <vector>

#include "base/year_filter.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/text.h"

namespace velmora::base {

/// A walk over whole folders, for commands that take all there is, of any name and kind. It goes through a
/// real folder once, however many links lead to it.
class FolderWalk {
 public:
  /// Whether the walk enters a link to a folder, or takes the link itself for a file. Commands that move or
  /// delete use AreFiles, so that they never act on what lies outside of the tree.
  enum class Links { AreFolders, AreFiles };

  FolderWalk(platform::Files& files, Links links) : files_(files), links_(links) {}

  struct Level {
    std::vector<Text> files;    ///< names of all other entries
    std::vector<Text> folders;  ///< names of the subfolders
  };
  /// What lies directly in a folder; nothing when the walk was there before. Throws FileError.
  Level enter(const Text& folder);

 private:
  platform::Files& files_;
  Links links_;
  std::set<platform::FolderId> walked_;
};

/// Hands out the path of every file in and below a folder, each folder's own files before its subfolders.
/// With a year filter in force, only those whose folder ends in a selected year. Gives way to the window
/// system after each entry. What cannot be read is passed over.
void FolderFileDump(platform::Files& files, platform::Desktop& desktop, const YearFilter& years,
                    const Text& folder, const std::function<void(const Text& path)>& sink);

}  // namespace velmora::base
