#pragma once

#include "platform/text.h"

namespace velmora::platform {

/// The desktop's trash folder. Both operations throw FileError and then leave the file where it was.
class Trash {
 public:
  virtual ~Trash() = default;
  /// Sends a file or folder to the trash and returns the full path under which it lies there now.
  virtual Text send(const Text& path) = 0;
  /// Moves what lies in the trash under `trashPath` to `target`, which must be free, and drops its info file.
  virtual void bringBack(const Text& trashPath, const Text& target) = 0;
};

}  // namespace velmora::platform
