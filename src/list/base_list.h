#pragma once

#include "core/data_folder.h"
#include "list/folder_scan.h"

namespace velmora::list {

/// `bazaniz`: the flat list of every file under the Music Base folder.
class BaseList {
 public:
  BaseList(const FolderScan::Parts& parts, core::DataFolder& data) : parts_(parts), data_(data) {}

  /// Makes the list anew by a walk over `root` and saves it as bazaniz.txt. `caption` is what the progress
  /// window shows first. A walk that Stop ended, or a root that cannot be read, leaves the list as it was.
  void refresh(const Text& root, TextView caption);

 private:
  FolderScan::Parts parts_;
  core::DataFolder& data_;
};

}  // namespace velmora::list
