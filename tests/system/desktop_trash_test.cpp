#include "system/desktop_trash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

#include "core/paths.h"
#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/fault_files.h"
#include "tests/support/file_errors.h"
#include "tests/support/other_volume.h"
#include "tests/support/temp_folder.h"
#include "tests/support/tree_snapshot.h"

namespace velmora::system {
namespace {

using platform::FileError;
using test::errorNumber;
using test::TreeSnapshot;

struct TrashTest : testing::Test {
  Bytes info(TextView name) { return home.read(Text(u"Trash/info/").append(name).append(u".trashinfo")); }
  bool hasInfo(TextView name) { return home.exists(Text(u"Trash/info/").append(name).append(u".trashinfo")); }

  test::TempFolder home;
  test::TempFolder music;
  PosixFiles real;
  test::FaultFiles files{real};
  DesktopTrash trash{files, home.path(u"Trash")};
};

TEST_F(TrashTest, AFileLiesInTheHomeTrashWithItsInfo) {
  const Text song = music.write(u"100% \xDCE9 \u0161.mp3", "song");
  EXPECT_EQ(trash.send(song), home.path(u"Trash/files/100% \xDCE9 \u0161.mp3"));
  EXPECT_FALSE(real.fileExists(song));
  EXPECT_EQ(home.read(u"Trash/files/100% \xDCE9 \u0161.mp3"), "song");
  EXPECT_THAT(info(u"100% \xDCE9 \u0161.mp3"),
              testing::MatchesRegex("\\[Trash Info\\]\nPath=" + core::toBytes(music.path()) +
                                    "/100%25%20%E9%20%C5%A1[.]mp3\nDeletionDate=[0-9]{4}-[0-9]{2}-[0-9]{2}"
                                    "T[0-9]{2}:[0-9]{2}:[0-9]{2}\n"));
  struct stat status;
  ASSERT_EQ(::stat(home.native(u"Trash").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700U);
}

TEST_F(TrashTest, FilesOfOneNameLieBesideEachOther) {
  for (const TextView folder : {u"1", u"2", u"3"}) {
    const Text song = music.write(Text(folder).append(u"/cover.jpg"), core::toBytes(folder));
    const Text there = trash.send(song);
    EXPECT_EQ(real.readAll(there), core::toBytes(folder));
  }
  EXPECT_TRUE(home.exists(u"Trash/files/cover.2.jpg"));
  EXPECT_TRUE(hasInfo(u"cover.3.jpg"));
}

TEST_F(TrashTest, AFileWithoutInfoIsNotOverwritten) {
  home.write(u"Trash/files/song.mp3", "of another program");
  const Text there = trash.send(music.write(u"song.mp3", "mine"));
  EXPECT_EQ(there, home.path(u"Trash/files/song.2.mp3"));
  EXPECT_EQ(home.read(u"Trash/files/song.mp3"), "of another program");
  EXPECT_FALSE(hasInfo(u"song.mp3"));
}

TEST_F(TrashTest, ANameThatLeavesNoRoomForItsInfoIsCut) {
  Text name;
  while (core::toBytes(name).size() < 249) name += u'\u0161';
  const Text song = music.write(name + u".mp3", "long");
  const Text there = trash.send(song);
  EXPECT_TRUE(there.ends_with(u"\u0161.mp3"));
  EXPECT_EQ(real.readAll(there), "long");
  trash.bringBack(there, song);
  EXPECT_EQ(music.read(name + u".mp3"), "long");
  EXPECT_EQ(TreeSnapshot::of(home.path()).files(), 0U);
}

TEST_F(TrashTest, WhatIsBroughtBackLeavesNoInfo) {
  const Text song = music.write(u"album/song.mp3", "song");
  const auto before = TreeSnapshot::of(music.path());
  const Text there = trash.send(song);
  real.removeEmptyFolder(music.path(u"album"));
  trash.bringBack(there, song);
  EXPECT_EQ(TreeSnapshot::of(music.path()), before) << "the folder is made again";
  EXPECT_EQ(TreeSnapshot::of(home.path()).files(), 0U);
}

TEST_F(TrashTest, AFolderGoesAndComesWhole) {
  music.write(u"album/cd/song.mp3", "song");
  const auto before = TreeSnapshot::of(music.path());
  const Text there = trash.send(music.path(u"album"));
  EXPECT_FALSE(music.exists(u"album"));
  trash.bringBack(there, music.path(u"album"));
  EXPECT_EQ(TreeSnapshot::of(music.path()), before);
}

TEST_F(TrashTest, BringingBackNeverOverwrites) {
  const Text song = music.write(u"song.mp3", "old");
  const Text there = trash.send(song);
  music.write(u"song.mp3", "new");
  EXPECT_EQ(errorNumber([&] { trash.bringBack(there, song); }), FileError::fileExists);
  EXPECT_EQ(music.read(u"song.mp3"), "new");
  EXPECT_TRUE(real.fileExists(there) && hasInfo(u"song.mp3"));
}

TEST_F(TrashTest, MissingFilesAreTold) {
  EXPECT_EQ(errorNumber([&] { trash.send(music.path(u"none")); }), FileError::fileNotFound);
  trash.send(music.write(u"song", ""));
  const auto before = TreeSnapshot::of(music.path());
  EXPECT_EQ(errorNumber([&] { trash.bringBack(home.path(u"Trash/files/none"), music.path(u"a/b/none")); }),
            FileError::fileNotFound);
  EXPECT_EQ(TreeSnapshot::of(music.path()), before) << "no folder was made for nothing";
}

// With each operation failing in turn, the file is in its place or in the trash, and no info file is alone.
TEST_F(TrashTest, AFailureAnywhereLosesNothing) {
  for (int nth = 1;; ++nth) {
    const Text song = music.write(u"album/song.mp3", "song");
    Text there;
    files.failAt(nth, FileError::diskFull);
    const bool sent = errorNumber([&] { there = trash.send(song); }) == 0;
    ASSERT_EQ(real.fileExists(song), !sent);
    ASSERT_EQ(hasInfo(u"song.mp3"), sent);
    if (!sent) continue;

    const bool back = errorNumber([&] { trash.bringBack(there, song); }) == 0;
    ASSERT_EQ(real.fileExists(song), back);
    ASSERT_EQ(real.fileExists(there), !back);
    const bool ended = !files.hasFailed();
    files.failNoMore();
    if (!back) trash.bringBack(there, song);
    home.removeAll(u"Trash");
    if (ended) break;
  }
}

TEST_F(TrashTest, TheHomeTrashMayBeALinkToAFolderOfTheUsers) {
  home.mkdir(u"elsewhere");
  ASSERT_EQ(::symlink("elsewhere", home.native(u"Trash").c_str()), 0);
  const Text there = trash.send(music.write(u"song.mp3", "song"));
  EXPECT_EQ(home.read(u"elsewhere/files/song.mp3"), "song");
  EXPECT_TRUE(home.exists(u"elsewhere/info/song.mp3.trashinfo"));
  trash.bringBack(there, music.path(u"song.mp3"));
  EXPECT_EQ(music.read(u"song.mp3"), "song");
}

TEST_F(TrashTest, TheNameInTheTrashIsToldAheadOfTheMove) {
  const Text song = music.write(u"song.mp3", "song");
  home.write(u"Trash/files/song.mp3", "without an info file");
  std::vector<Text> told;
  const Text there = trash.send(song, [&](const Text& path) {
    told.push_back(path);
    EXPECT_TRUE(real.fileExists(song));
  });
  EXPECT_EQ(told, (std::vector<Text>{home.path(u"Trash/files/song.mp3"), there}));
  EXPECT_THROW(trash.send(music.write(u"b", ""), [](const Text&) { throw FileError(FileError::diskFull); }),
               FileError);
  EXPECT_FALSE(home.exists(u"Trash/info/b.trashinfo"));
}

struct VolumeTrashTest : TrashTest {
  void SetUp() override { files.pretendVolume(volume.path()); }

  const Text user = core::fromBytes(std::to_string(::getuid()));
  test::TempFolder volume;
};

TEST_F(VolumeTrashTest, AnotherVolumeHasATrashOfItsOwn) {
  const Text there = trash.send(volume.write(u"music/a b.mp3", "song"));
  EXPECT_EQ(there, volume.path(u".Trash-" + user + u"/files/a b.mp3"));
  const Bytes told = volume.read(u".Trash-" + user + u"/info/a b.mp3.trashinfo");
  EXPECT_TRUE(told.starts_with("[Trash Info]\nPath=music/a%20b.mp3\n")) << told;
  trash.bringBack(there, volume.path(u"music/a b.mp3"));
  EXPECT_EQ(volume.read(u"music/a b.mp3"), "song");
  EXPECT_FALSE(volume.exists(u".Trash-" + user + u"/info/a b.mp3.trashinfo"));
}

TEST_F(VolumeTrashTest, ASharedTrashMustBeStickyAndNoLink) {
  volume.mkdir(u".Trash");
  EXPECT_TRUE(trash.send(volume.write(u"1", "1")).starts_with(volume.path(u".Trash-")));
  ASSERT_EQ(::chmod(volume.native(u".Trash").c_str(), 01777), 0);
  EXPECT_EQ(trash.send(volume.write(u"2", "2")), volume.path(u".Trash/" + user + u"/files/2"));
}

TEST_F(VolumeTrashTest, ALinkInPlaceOfItsTrashIsNotFollowed) {
  volume.mkdir(u"elsewhere");
  ASSERT_EQ(::symlink("elsewhere", volume.native(u".Trash-" + user).c_str()), 0);
  EXPECT_EQ(trash.send(volume.write(u"song", "s")), home.path(u"Trash/files/song"));
  EXPECT_FALSE(volume.exists(u"elsewhere/files"));
}

TEST_F(TrashTest, AVolumeThatTakesNoTrashIsServedByTheHomeTrash) {
  test::OtherVolume other;
  if (!other.available()) GTEST_SKIP() << "this machine offers no second volume";
  files.pretendVolume(other.path());
  // A file in the place of each trash folder.
  other.folder().write(u".Trash-" + core::fromBytes(std::to_string(::getuid())), "");
  const Text song = other.folder().write(u"song.mp3", "song");
  const Text there = trash.send(song);
  EXPECT_EQ(there, home.path(u"Trash/files/song.mp3"));
  EXPECT_EQ(home.read(u"Trash/files/song.mp3"), "song");
  trash.bringBack(there, song);
  EXPECT_EQ(other.folder().read(u"song.mp3"), "song");
  // A folder whose files are copied, but that cannot be taken away whole, lies in the trash as it should.
  other.folder().write(u"album/1.mp3", "song");
  ASSERT_EQ(::chmod(other.folder().native(u"album").c_str(), 0500), 0);
  if (errorNumber([&] { trash.send(other.path(u"album")); }) != 0) {
    EXPECT_EQ(home.read(u"Trash/files/album/1.mp3"), "song");
    EXPECT_TRUE(home.exists(u"Trash/info/album.trashinfo"));
  }
  ::chmod(other.folder().native(u"album").c_str(), 0700);
}

}  // namespace
}  // namespace velmora::system
