#pragma once

#include <deque>
#include <unordered_map>
#include <unordered_set>

#include "list/folder_scan.h"
#include "platform/files.h"

namespace velmora::list {

/// The files that a list holds, whatever links their paths lead through: tells whether a file that a scan
/// found is among them. Keeps views of the texts that it is given, which must outlive it unchanged.
class ListedFiles {
 public:
  explicit ListedFiles(platform::Files& files) : files_(files) {}

  /// A path that is listed.
  void add(const Text& path);
  /// Adds what a scan has found. False when the same file is listed already.
  bool add(const FoundFile& found);
  bool contains(const FoundFile& found) const { return paths_.contains(found.realPath()); }

 private:
  /// What is known of a folder with listed files.
  struct Folder {
    Text real;                        // its path with all links followed
    std::unordered_set<Text> linked;  // names in it that are links
  };
  const Folder& folderOf(TextView path);

  platform::Files& files_;
  std::unordered_set<TextView> paths_;
  std::deque<Text> own_;  // real paths that differ from the listed ones
  std::unordered_map<Text, Folder> folders_;
};

}  // namespace velmora::list
