#pragma once

#include <ctime>
#include <optional>
#include <sys/types.h>
#include <unordered_map>

#include "platform/files.h"
#include "platform/trash.h"

namespace velmora::system {

/// The desktop's trash by its published folder layout (freedesktop.org Trash specification 1.0): the home
/// trash for files on the home volume, a per-volume trash for others; the info file is written first and
/// exclusively. The home trash may be a link to another folder of the user's. Where a volume lets us make no
/// trash, its files are moved to the home trash.
class DesktopTrash final : public platform::Trash {
 public:
  /// `homeTrash` is the full path of the home trash folder; see defaultHomeTrash.
  DesktopTrash(platform::Files& files, Text homeTrash);
  /// $XDG_DATA_HOME/Trash, by default ~/.local/share/Trash.
  static Text defaultHomeTrash();

  using Trash::send;
  Text send(const Text& path, const Announce& announce) override;
  void bringBack(const Text& trashPath, const Text& target) override;

 private:
  /// A trash folder, and the folder that the paths in its info files start from; empty for full paths.
  struct Place {
    Text folder;
    Text origin;
  };
  Place placeFor(TextView folder, dev_t device, std::time_t now);
  static std::optional<Place> volumePlace(const Text& volume);
  void dropInfo(const Text& infoFile);

  platform::Files& files_;
  Text homeTrash_;
  /// The number that a file tries when its plain name is taken, per trash and name: a trash full of files of
  /// one name is not searched from its beginning for each.
  std::unordered_map<Text, int> nextNumber_;
  /// The volume of the last file, empty for that of the home trash. It goes for the others of its folder
  /// within the same second, since finding it takes more calls than all else.
  struct Found {
    Text folder;
    dev_t device = 0;
    std::time_t second = 0;
    Text volume;
  };
  Found found_;
};

}  // namespace velmora::system
