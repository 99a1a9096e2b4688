#include "system/mounts.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "system/posix_files.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Mounts, OnlyVolumesThatHoldFilesAreNamed) {
  const Bytes mounts =
      "proc /proc proc rw,relatime 0 0\n"
      "/dev/sda2 / ext4 rw 0 0\n"
      "tmpfs /run tmpfs rw 0 0\n"
      "/dev/sdb1 /media/my\\040disk vfat rw 0 0\n"
      "server:/music /net/music nfs4 ro 0 0\n"
      "phone /run/user/1/phone fuse.mtp rw 0 0\n"
      "/dev/loop3 /snap/core squashfs ro 0 0\n"
      "/dev/sda2 / ext4 rw 0 0\n"
      "torn line\n";
  const auto any = [](const Bytes&) { return true; };
  const auto none = [](const Bytes&) { return false; };
  EXPECT_THAT(system::mountPointsIn(mounts, any),
              ElementsAre("/", "/media/my disk", "/net/music", "/run/user/1/phone"));
  EXPECT_THAT(system::mountPointsIn("/dev/sda1 /odd\\09 ext4\n/dev/sda1 /end\\04 ext4\n", any),
              ElementsAre("/end\\04", "/odd\\09"))
      << "what is no character's number stays as it is";
  EXPECT_THAT(system::mountPointsIn(mounts, none), ElementsAre("/net/music"))
      << "what may never answer is not asked";
  EXPECT_THAT(system::mountPointsIn("", any), IsEmpty());
}

TEST(Mounts, TheMachinesOwnAreFolders) {
  system::PosixFiles files;
  const std::vector<Text> volumes = files.volumes();
  EXPECT_TRUE(std::ranges::is_sorted(volumes));
  for (const Text& volume : volumes) EXPECT_TRUE(files.folderExists(volume));
}

}  // namespace
}  // namespace velmora
