#include "system/posix_files.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/text.h"
#include "system/descriptor.h"
#include "tests/support/file_errors.h"
#include "tests/support/temp_folder.h"

namespace velmora::system {
namespace {

using platform::EntryKind;
using platform::FileError;
using platform::OpenMode;
using test::errorNumber;

struct PosixFilesTest : testing::Test {
  test::TempFolder folder;
  PosixFiles files;
};

TEST_F(PosixFilesTest, AListingTellsFilesFoldersAndWhatMustNotBeOpened) {
  folder.write(u"a \xDCE9.mp3", "1");
  folder.mkdir(u"inner");
  ASSERT_EQ(::symlink("inner", folder.native(u"to folder").c_str()), 0);
  ASSERT_EQ(::symlink("a \xE9.mp3", folder.native(u"to file").c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", folder.native(u"dangling").c_str()), 0);
  ASSERT_EQ(::mkfifo(folder.native(u"pipe").c_str(), 0600), 0);

  auto listing = files.list(folder.path());
  std::ranges::sort(listing.entries, {}, &platform::FolderEntry::name);
  std::vector<std::pair<Text, EntryKind>> entries;
  for (const auto& entry : listing.entries) entries.emplace_back(entry.name, entry.kind);
  EXPECT_EQ(entries, (std::vector<std::pair<Text, EntryKind>>{{u"a \xDCE9.mp3", EntryKind::File},
                                                              {u"dangling", EntryKind::Other},
                                                              {u"inner", EntryKind::Folder},
                                                              {u"pipe", EntryKind::Other},
                                                              {u"to file", EntryKind::File},
                                                              {u"to folder", EntryKind::Folder}}));
  EXPECT_EQ(files.list(folder.path(u"to folder")).id, files.list(folder.path(u"inner")).id);
  EXPECT_NE(files.list(folder.path(u"inner")).id, listing.id);
}

TEST_F(PosixFilesTest, MissingThingsAreToldApart) {
  folder.write(u"file", "");
  EXPECT_EQ(errorNumber([&] { files.open(folder.path(u"none"), OpenMode::Read); }), FileError::fileNotFound);
  EXPECT_EQ(errorNumber([&] { files.open(folder.path(u"no/ne"), OpenMode::Read); }), FileError::pathNotFound);
  EXPECT_EQ(errorNumber([&] { files.size(folder.path(u"file/under")); }), FileError::pathNotFound);
  EXPECT_EQ(errorNumber([&] { files.list(folder.path(u"file")); }), FileError::pathNotFound);
  EXPECT_EQ(errorNumber([&] { files.create(folder.path(u"file")); }), FileError::fileExists);
  EXPECT_FALSE(files.fileExists(folder.path()));
  EXPECT_FALSE(files.folderExists(folder.path(u"file")));
}

TEST_F(PosixFilesTest, AZeroCharacterNeverShortensAPath) {
  folder.write(u"song", "x");
  const Text path = folder.path(Text(u"song\0.bak", 9));
  EXPECT_FALSE(files.fileExists(path));
  EXPECT_EQ(errorNumber([&] { files.remove(path); }), FileError::pathNotFound);
  EXPECT_TRUE(folder.exists(u"song"));
}

TEST_F(PosixFilesTest, PipesAndFoldersAreRefusedUnopened) {
  ASSERT_EQ(::mkfifo(folder.native(u"pipe").c_str(), 0600), 0);
  for (const Text& path : {folder.path(u"pipe"), folder.path(), Text(u"/dev/null")}) {
    EXPECT_EQ(errorNumber([&] { files.open(path, OpenMode::Read); }), FileError::pathAccess);
    EXPECT_EQ(errorNumber([&] { files.readAll(path); }), FileError::pathAccess);
    EXPECT_EQ(errorNumber([&] { files.writeAll(path, "x"); }), FileError::pathAccess);
    EXPECT_EQ(errorNumber([&] { files.append(path, "x"); }), FileError::pathAccess);
    EXPECT_FALSE(files.busy(path));
  }
}

TEST_F(PosixFilesTest, AnOpenFileReadsAndWritesAtOffsets) {
  const auto file = files.open(folder.write(u"a", "0123456789"), OpenMode::ReadWrite);
  std::array<char, 8> buffer;
  EXPECT_EQ(file->readAt(4, buffer), 6U);
  EXPECT_EQ(file->readAt(99, buffer), 0U);
  file->writeAt(12, "ab");
  EXPECT_EQ(file->size(), 14U);
  EXPECT_EQ(folder.read(u"a"), Bytes("0123456789\0\0ab", 14));
}

TEST_F(PosixFilesTest, ToReadAFileDoesNotCountAsAnAccess) {
  const Text path = folder.write(u"a", "0123456789");
  const Bytes native = folder.native(u"a");
  std::array<char, 8> buffer;
  const auto counts = [&](const std::function<void()>& read) {
    const timespec longAgo[] = {{1, 0}, {2, 0}};  // older than a day and than the last change
    EXPECT_EQ(::utimensat(AT_FDCWD, native.c_str(), longAgo, 0), 0);
    read();
    struct stat status;
    EXPECT_EQ(::stat(native.c_str(), &status), 0);
    return status.st_atime != 1;
  };
  const auto readPlainly = [&] {
    const Descriptor file(::open(native.c_str(), O_RDONLY | O_NOATIME));
    EXPECT_GT(::read(file.get(), buffer.data(), buffer.size()), 0);
  };
  if (counts(readPlainly)) GTEST_SKIP() << "this file system counts every access";
  EXPECT_FALSE(counts([&] { files.open(path, OpenMode::Read)->readAt(0, buffer); }));
  EXPECT_FALSE(counts([&] { files.readAll(path); }));
}

TEST_F(PosixFilesTest, AFileOfAnotherUserIsReadToo) {
  const uid_t user = ::geteuid();
  constexpr uid_t nobody = 65534;
  if (user == 0 && ::seteuid(nobody) != 0) GTEST_SKIP() << "no other user to be had";
  EXPECT_EQ(errorNumber([&] { files.readAll(u"/etc/passwd"); }), 0);
  ASSERT_EQ(::seteuid(user), 0);
}

TEST_F(PosixFilesTest, WholeContentsGrowAndShrinkInPlace) {
  const Text path = folder.path(u"own");
  const Bytes large(300'000, 'x');
  for (const BytesView content : {BytesView("short"), BytesView(large), BytesView(""), BytesView("end")}) {
    files.writeAll(path, content);
    EXPECT_EQ(files.readAll(path), content);
  }
  files.append(path, "ing");
  EXPECT_EQ(folder.read(u"own"), "ending");
  files.append(folder.path(u"new"), "made");
  EXPECT_EQ(folder.read(u"new"), "made");
}

TEST_F(PosixFilesTest, AFullDiskLeavesTheOldContent) {
  const Text path = folder.write(u"own", "old content");
  const test::FileSizeLimit limit(4096);
  EXPECT_NE(errorNumber([&] { files.append(path, Bytes(8192, 'x')); }), 0);
  EXPECT_NE(errorNumber([&] { files.writeAll(path, Bytes(8192, 'x')); }), 0);
  EXPECT_EQ(folder.read(u"own"), "old content");
}

TEST_F(PosixFilesTest, AReadOnlyFileIsReadAndNotWrittenUntilItsMarkIsCleared) {
  const Text path = folder.write(u"song", "x");
  ASSERT_EQ(::chmod(folder.native(u"song").c_str(), 0444), 0);
  EXPECT_EQ(files.readAll(path), "x");
  EXPECT_EQ(errorNumber([&] { files.open(path, OpenMode::ReadWrite); }), FileError::permissionDenied);
  EXPECT_EQ(errorNumber([&] { files.append(path, "y"); }), FileError::permissionDenied);
  files.clearAttributes(path);
  files.append(path, "y");
  EXPECT_EQ(folder.read(u"song"), "xy");
}

TEST_F(PosixFilesTest, FoldersAreMadeWithThoseAboveThem) {
  files.makeFolder(folder.path(u"a/b/c"));
  files.makeFolder(folder.path(u"a/b/c"));
  files.makeFolder(folder.path(u"a/b/d/"));
  EXPECT_TRUE(files.folderExists(folder.path(u"a/b/c")));
  EXPECT_TRUE(files.folderExists(folder.path(u"a/b/d")));
  folder.write(u"file", "");
  EXPECT_EQ(errorNumber([&] { files.makeFolder(folder.path(u"file")); }), FileError::fileExists);
  EXPECT_EQ(errorNumber([&] { files.makeFolder(folder.path(u"file/a")); }), FileError::pathNotFound);
}

TEST_F(PosixFilesTest, OnlyEmptyFoldersGo) {
  folder.write(u"full/song", "x");
  EXPECT_EQ(errorNumber([&] { files.removeEmptyFolder(folder.path(u"full")); }), FileError::pathAccess);
  EXPECT_EQ(errorNumber([&] { files.remove(folder.path(u"full")); }), FileError::pathAccess);
  files.remove(folder.path(u"full/song"));
  files.removeEmptyFolder(folder.path(u"full"));
  EXPECT_FALSE(folder.exists(u"full"));
}

TEST_F(PosixFilesTest, AFileThatAnotherHasLockedIsBusy) {
  const Text path = folder.write(u"song", "x");
  EXPECT_FALSE(files.busy(path));
  EXPECT_FALSE(files.busy(folder.path(u"none")));
  {
    const Descriptor other(::open(folder.native(u"song").c_str(), O_RDONLY));
    ASSERT_EQ(::flock(other.get(), LOCK_SH), 0);
    EXPECT_TRUE(files.busy(path)) << "a whole-file lock, shared with other readers";
  }
  {
    const Descriptor other(::open(folder.native(u"song").c_str(), O_RDONLY));
    struct flock record = {};
    record.l_type = F_RDLCK;
    record.l_len = 1;
    ASSERT_EQ(::fcntl(other.get(), F_OFD_SETLK, &record), 0);
    EXPECT_TRUE(files.busy(path)) << "a lock on a part";
  }
  EXPECT_FALSE(files.busy(path));
}

TEST_F(PosixFilesTest, AVolumeIsItsMountPoint) {
  const Text volume = files.volumeOf(folder.path(u"not/there/yet"));
  EXPECT_EQ(volume, files.volumeOf(folder.path()));
  EXPECT_TRUE(folder.path().starts_with(volume));
  EXPECT_EQ(files.volumeOf(u"/proc/self"), u"/proc");
  EXPECT_GT(files.freeBytes(folder.path(u"not/there/yet")), 0U);
}

}  // namespace
}  // namespace velmora::system
