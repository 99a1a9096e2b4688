#pragma once

#include "platform/text.h"

namespace velmora::system {

/// The folder that holds the whole state, chosen once at start and made at first use: $VELMORA_HOME if set;
/// else the folder of the executable when it holds Settings.ini or a file `portable`; else
/// $XDG_DATA_HOME/velmora, by default ~/.local/share/velmora. Where it cannot be made, the program must still
/// start.
Text programFolder();
/// Whether the folder is there and files can be made in it.
bool canKeepFiles(const Text& folder);
/// The folder of the shipped files: `../share/velmora` seen from the executable, or the source tree's
/// `resources` in a build that was not installed.
Text shippedFolder();

/// A lock on the file velmora.lock, held while the program runs; the system lets go of it however the program
/// ends.
class InstanceLock {
 public:
  explicit InstanceLock(const Text& programFolder);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;
  /// Whether another process had the lock when this object was made.
  bool anotherInstanceRunning() const { return another_; }

 private:
  int descriptor_ = -1;
  bool another_ = false;
};

}  // namespace velmora::system
