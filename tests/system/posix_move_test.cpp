#include "system/posix_move.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/paths.h"
#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/file_errors.h"
#include "tests/support/other_volume.h"
#include "tests/support/temp_folder.h"
#include "tests/support/tree_snapshot.h"

namespace velmora::system {
namespace {

using platform::FileError;
using test::errorNumber;
using test::TreeSnapshot;

struct stat statusOf(const Text& path) {
  struct stat status = {};
  EXPECT_EQ(::lstat(core::toBytes(path).c_str(), &status), 0);
  return status;
}

struct MoveTest : testing::Test {
  test::TempFolder folder;
  PosixFiles files;
};

TEST_F(MoveTest, NeverOverwrites) {
  const Text a = folder.write(u"a", "a");
  const Text b = folder.write(u"b", "b");
  folder.mkdir(u"folder");
  const auto before = TreeSnapshot::of(folder.path());
  EXPECT_EQ(errorNumber([&] { files.move(a, b); }), FileError::fileExists);
  EXPECT_EQ(errorNumber([&] { files.move(a, folder.path(u"folder")); }), FileError::fileExists);
  EXPECT_EQ(errorNumber([&] { files.moveFolder(folder.path(u"folder"), b); }), FileError::fileExists);
  EXPECT_EQ(TreeSnapshot::of(folder.path()), before);
}

TEST_F(MoveTest, ToItselfDoesNothing) {
  const Text a = folder.write(u"a", "a");
  files.move(a, a);
  EXPECT_EQ(folder.read(u"a"), "a");
  EXPECT_EQ(errorNumber([&] { files.move(folder.path(u"x"), folder.path(u"x")); }), FileError::fileNotFound);
}

TEST_F(MoveTest, ChangesCapitalsAndKeepsAnUnrelatedFileOfThatSpelling) {
  const Text lower = folder.write(u"song.mp3", "mine");
  const Text upper = folder.path(u"SONG.mp3");
  files.move(lower, upper);
  EXPECT_EQ(folder.read(u"SONG.mp3"), "mine");
  EXPECT_FALSE(folder.exists(u"song.mp3"));

  folder.write(u"song.mp3", "another");
  EXPECT_EQ(errorNumber([&] { files.move(upper, lower); }), FileError::fileExists);
  EXPECT_EQ(folder.read(u"SONG.mp3"), "mine");
  EXPECT_EQ(folder.read(u"song.mp3"), "another");
}

TEST_F(MoveTest, TwoNamesOfOneFileAreTwoEntries) {
  const Text lower = folder.write(u"song.mp3", "x");
  const Text upper = folder.path(u"SONG.mp3");
  ASSERT_EQ(::link(core::toBytes(lower).c_str(), core::toBytes(upper).c_str()), 0);
  EXPECT_EQ(errorNumber([&] { files.move(lower, upper); }), FileError::fileExists);
  EXPECT_TRUE(folder.exists(u"song.mp3"));
}

TEST_F(MoveTest, MissingEndsAreTold) {
  const Text a = folder.write(u"a", "a");
  EXPECT_EQ(errorNumber([&] { files.move(folder.path(u"x"), folder.path(u"y")); }), FileError::fileNotFound);
  EXPECT_EQ(errorNumber([&] { files.move(a, folder.path(u"none/a")); }), FileError::pathNotFound);
  EXPECT_EQ(errorNumber([&] { files.move(a, folder.path(Text(300, u'n'))); }), FileError::deviceError);
  EXPECT_EQ(folder.read(u"a"), "a");
}

TEST_F(MoveTest, AFolderDoesNotGoIntoItself) {
  folder.write(u"a/song", "x");
  EXPECT_EQ(errorNumber([&] { files.moveFolder(folder.path(u"a"), folder.path(u"a/b")); }),
            FileError::pathAccess);
  EXPECT_EQ(folder.read(u"a/song"), "x");
}

TEST_F(MoveTest, ALinkMovesAsALink) {
  const Text song = folder.write(u"song", "x");
  ASSERT_EQ(::symlink("song", folder.native(u"link").c_str()), 0);
  files.move(folder.path(u"link"), folder.path(u"renamed"));
  EXPECT_TRUE(S_ISLNK(statusOf(folder.path(u"renamed")).st_mode));
  EXPECT_EQ(folder.read(u"song"), "x");
}

TEST_F(MoveTest, ALinkLeadsWhereItLedFromAnyFolder) {
  folder.write(u"store/song", "x");
  folder.mkdir(u"deep/base");
  folder.mkdir(u"in/a");
  ASSERT_EQ(::symlink("deep/base", folder.native(u"base").c_str()), 0);
  ASSERT_EQ(::symlink("../../store/song", folder.native(u"in/a/link").c_str()), 0);
  for (const TextView there : {u"link", u"base/link", u"deep/link", u"in/a/link"}) {
    const Text from = there == u"link"        ? u"in/a/link"
                      : there == u"base/link" ? u"link"
                      : there == u"deep/link" ? u"base/link"
                                              : u"deep/link";
    files.move(folder.path(from), folder.path(Text(there)));
    EXPECT_EQ(folder.read(there), "x") << core::toBytes(there);
    EXPECT_TRUE(S_ISLNK(statusOf(folder.path(Text(there))).st_mode));
  }
  Bytes text(16, ' ');
  EXPECT_EQ(::readlink(folder.native(u"in/a/link").c_str(), text.data(), text.size()), 16);
  EXPECT_EQ(text, "../../store/song") << "back at its place it is as it was";
}

TEST_F(MoveTest, DisksWithoutACheckedRenameDoNotOverwriteEither) {
  for (const auto rename : {renameByLink, renameOverPlaceholder}) {
    folder.write(u"a", "a");
    folder.write(u"b", "b");
    folder.write(u"dir/song", "s");
    folder.mkdir(u"taken");
    EXPECT_EQ(rename(folder.native(u"a"), folder.native(u"b")), EEXIST);
    EXPECT_EQ(rename(folder.native(u"dir"), folder.native(u"taken")), EEXIST);
    EXPECT_EQ(rename(folder.native(u"none"), folder.native(u"c")), ENOENT);
    EXPECT_FALSE(folder.exists(u"c"));
    EXPECT_EQ(rename(folder.native(u"a"), folder.native(u"c")), 0);
    EXPECT_EQ(rename(folder.native(u"dir"), folder.native(u"dir2")), 0);
    EXPECT_EQ(folder.read(u"b") + folder.read(u"c") + folder.read(u"dir2/song"), "bas");
    EXPECT_FALSE(folder.exists(u"a") || folder.exists(u"dir"));
    files.remove(folder.path(u"c"));
    files.remove(folder.path(u"dir2/song"));
    files.removeEmptyFolder(folder.path(u"dir2"));
  }
}

struct MoveAcrossTest : MoveTest {
  void SetUp() override {
    if (!other.available()) GTEST_SKIP() << "this machine offers no second volume";
  }
  test::OtherVolume other;
};

TEST_F(MoveAcrossTest, AFileKeepsContentTimesAndMode) {
  const Bytes content(700'001, 'm');
  const Text from = folder.write(u"song \xDCE9.mp3", content);
  ASSERT_EQ(::chmod(core::toBytes(from).c_str(), 0640), 0);
  const timespec times[] = {{1'000'000'000, 0}, {1'100'000'000, 5'000'000}};
  ASSERT_EQ(::utimensat(AT_FDCWD, core::toBytes(from).c_str(), times, 0), 0);

  const Text to = other.path(u"song.mp3");
  files.move(from, to);
  EXPECT_FALSE(folder.exists(u"song \xDCE9.mp3"));
  EXPECT_EQ(files.readAll(to), content);
  const struct stat status = statusOf(to);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
  EXPECT_EQ(status.st_mtim.tv_sec, 1'100'000'000);
  EXPECT_EQ(TreeSnapshot::of(other.path()).files(), 1U) << "no temporary file is left";
}

TEST_F(MoveAcrossTest, NeverOverwritesAndAFailureLeavesNothingHalf) {
  const Text from = folder.write(u"song", Bytes(20'000, 'x'));
  files.writeAll(other.path(u"song"), "there already");
  EXPECT_EQ(errorNumber([&] { files.move(from, other.path(u"song")); }), FileError::fileExists);
  EXPECT_EQ(files.readAll(other.path(u"song")), "there already");
  EXPECT_EQ(errorNumber([&] { files.move(from, other.path(u"no/song")); }), FileError::pathNotFound);
  {
    const test::FileSizeLimit full(4096);
    EXPECT_NE(errorNumber([&] { files.move(from, other.path(u"new")); }), 0);
  }
  EXPECT_EQ(folder.read(u"song").size(), 20'000U);
  EXPECT_EQ(TreeSnapshot::of(other.path()).files(), 1U);
}

TEST_F(MoveAcrossTest, AFolderGoesWithAllItHolds) {
  folder.write(u"album/1.mp3", "one");
  folder.write(u"album/cd 2/2.mp3", "two");
  folder.mkdir(u"album/empty");
  ASSERT_EQ(::symlink("1.mp3", folder.native(u"album/link").c_str()), 0);
  ASSERT_EQ(::chmod(folder.native(u"album/cd 2").c_str(), 0750), 0);
  const auto before = TreeSnapshot::of(folder.path(u"album"));

  files.moveFolder(folder.path(u"album"), other.path(u"album"));
  EXPECT_EQ(TreeSnapshot::of(other.path(u"album")), before);
  EXPECT_EQ(statusOf(other.path(u"album/cd 2")).st_mode & 07777, 0750U);
  EXPECT_FALSE(folder.exists(u"album"));
}

TEST_F(MoveAcrossTest, AFolderWithWhatCannotBeCopiedStaysWhole) {
  folder.write(u"album/1.mp3", "one");
  ASSERT_EQ(::mkfifo(folder.native(u"album/pipe").c_str(), 0600), 0);
  const auto before = TreeSnapshot::of(folder.path());
  EXPECT_EQ(errorNumber([&] { files.moveFolder(folder.path(u"album"), other.path(u"album")); }),
            FileError::pathAccess);
  EXPECT_EQ(TreeSnapshot::of(folder.path()), before);
  EXPECT_EQ(TreeSnapshot::of(other.path()), TreeSnapshot());
}

TEST_F(MoveTest, AReplacementTakesTheModeOfTheOldFile) {
  const Text song = folder.write(u"song.mp3", "old");
  ASSERT_EQ(::chmod(core::toBytes(song).c_str(), 0604), 0);
  files.replace(folder.write(u"song.new", "new"), song);
  EXPECT_EQ(folder.read(u"song.mp3"), "new");
  EXPECT_EQ(statusOf(song).st_mode & 07777, 0604U);
  EXPECT_FALSE(folder.exists(u"song.new"));
}

TEST_F(MoveTest, AReplacementFollowsLinksAndRespectsReadOnlyFiles) {
  folder.write(u"base/song.mp3", "old");
  ASSERT_EQ(::symlink("base/song.mp3", folder.native(u"link.mp3").c_str()), 0);
  files.replace(folder.write(u"link.new", "new"), folder.path(u"link.mp3"));
  EXPECT_TRUE(S_ISLNK(statusOf(folder.path(u"link.mp3")).st_mode));
  EXPECT_EQ(folder.read(u"base/song.mp3"), "new");

  ASSERT_EQ(::chmod(folder.native(u"base/song.mp3").c_str(), 0444), 0);
  const Text next = folder.write(u"base/song.new", "next");
  EXPECT_EQ(errorNumber([&] { files.replace(next, folder.path(u"base/song.mp3")); }),
            FileError::permissionDenied);
  EXPECT_EQ(folder.read(u"base/song.mp3"), "new");
}

TEST_F(MoveAcrossTest, AReplacementFollowsALinkToAnotherVolume) {
  files.writeAll(other.path(u"song.mp3"), "old");
  ASSERT_EQ(::symlink(core::toBytes(other.path(u"song.mp3")).c_str(), folder.native(u"link.mp3").c_str()), 0);
  files.replace(folder.write(u"link.new", "new"), folder.path(u"link.mp3"));
  EXPECT_EQ(files.readAll(other.path(u"song.mp3")), "new");
  EXPECT_TRUE(S_ISLNK(statusOf(folder.path(u"link.mp3")).st_mode));
  EXPECT_FALSE(folder.exists(u"link.new"));
}

}  // namespace
}  // namespace velmora::system
