#pragma once

#include <functional>

#include "platform/text.h"

namespace velmora::platform {

/// The desktop's trash folder. All operations throw FileError and then leave the file where it was.
class Trash {
 public:
  /// Hears of the full path that a file is to have in the trash: when that is reserved, and before the file
  /// moves. It is told of another one where that name turns out to be taken. What it throws ends the move.
  using Announce = std::function<void(const Text& trashPath)>;

  virtual ~Trash() = default;
  /// Sends a file or folder to the trash and returns the full path under which it lies there now.
  virtual Text send(const Text& path, const Announce& announce) = 0;
  Text send(const Text& path) { return send(path, {}); }
  /// Moves what lies in the trash under `trashPath` to `target`, which must be free, and drops its info file.
  virtual void bringBack(const Text& trashPath, const Text& target) = 0;
};

}  // namespace velmora::platform
