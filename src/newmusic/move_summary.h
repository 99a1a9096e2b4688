#pragma once

#include <functional>
#include <unordered_map>

#include "base/base_lists.h"
#include "core/track_table.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// The summary line of the New Music Window: how many files are new, the room that they need on the volume of
/// the base, and the room there is.
class MoveSummary {
 public:
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Dialogs& dialogs;
    ui::Windows& windows;
    const base::BaseLists& lists;
  };
  explicit MoveSummary(const Parts& parts) : parts_(parts) {}

  /// The last file went into the base: the New Music Window is to close.
  std::function<void()> onAllMoved;

  /// Brings the labels up to date. When the working list has become empty by a move, the user is told and
  /// onAllMoved is raised.
  void moze();
  /// Bytes of the files that lie on another volume than the base; of all files while the base has no root.
  double NeedBytes();
  /// Bytes that are free on the base's volume; 0 when the system does not tell.
  double FreeBytes() const;
  /// Volumes and sizes are asked of the system once. After this they are asked again.
  void forget();

 private:
  const Text& volumeOf(const Text& folder);
  double sizeOf(const Text& path);

  Parts parts_;
  std::unordered_map<Text, Text> volumes_;  // by folder
  std::unordered_map<Text, double> sizes_;  // by path
};

}  // namespace velmora::newmusic
