#pragma once

#include "platform/files.h"
#include "platform/trash.h"

namespace velmora::system {

/// The desktop's trash by its published folder layout (freedesktop.org Trash specification 1.0): the home
/// trash for files on the home volume, a per-volume trash for others; the info file is written first and
/// exclusively.
class DesktopTrash final : public platform::Trash {
 public:
  /// `homeTrash` is the full path of the home trash folder; see defaultHomeTrash.
  DesktopTrash(platform::Files& files, Text homeTrash);
  /// $XDG_DATA_HOME/Trash, by default ~/.local/share/Trash.
  static Text defaultHomeTrash();

  Text send(const Text& path) override;
  void bringBack(const Text& trashPath, const Text& target) override;

 private:
  platform::Files& files_;
  Text homeTrash_;
};

}  // namespace velmora::system
