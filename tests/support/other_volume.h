#pragma once

#include <memory>

#include "tests/support/temp_folder.h"

namespace velmora::test {

/// A temporary folder on another volume than that of TempFolder, where the machine has one: /dev/shm, which
/// is memory, and the folder for temporary files hardly ever lie on the same.
class OtherVolume {
 public:
  OtherVolume();
  bool available() const { return folder_ != nullptr; }
  const Text& path() const { return folder_->path(); }
  Text path(TextView name) const { return folder_->path(name); }
  const TempFolder& folder() const { return *folder_; }

 private:
  std::unique_ptr<TempFolder> folder_;
};

}  // namespace velmora::test
