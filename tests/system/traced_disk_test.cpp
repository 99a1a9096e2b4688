#include "system/traced_disk.h"

#include <array>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/file_errors.h"
#include "tests/support/temp_folder.h"

namespace velmora::system {
namespace {

using test::TempFolder;

/// The lines of the trace "trace" without what differs from run to run: seconds, durations, and the folder.
std::vector<std::string> linesOf(const TempFolder& folder) {
  std::istringstream trace(std::regex_replace(folder.read(u"trace"), std::regex(R"(, [0-9.]+ ms)"), ""));
  std::vector<std::string> lines;
  for (std::string line; std::getline(trace, line);) {
    line = std::regex_replace(line, std::regex(R"(^ *[0-9]+\.[0-9]{6} )"), "");
    const std::string root = core::toBytes(folder.path()) + '/';
    for (std::size_t at; (at = line.find(root)) != std::string::npos;) line.erase(at, root.size());
    lines.push_back(line);
  }
  return lines;
}

TEST(TracedDiskTest, EveryOperationIsALineWithWhatCameOfIt) {
  const TempFolder folder;
  PosixFiles disk;
  int line = 0;
  {
    TracedDisk traced(disk, folder.native(u"trace"));
    platform::Files& files = traced.files();
    {
      const auto file = files.create(folder.path(u"a"));
      file->writeAt(0, "abc");
      file->flush();
      std::array<char, 8> bytes;
      EXPECT_EQ(file->readAt(1, bytes), 2U);
    }
    folder.write(u"b", "");
    EXPECT_EQ(test::errorNumber([&] { files.move(folder.path(u"a"), folder.path(u"b")); }),
              platform::FileError::fileExists);
    EXPECT_TRUE(files.fileExists(folder.path(u"a")));
    EXPECT_TRUE(files.list(folder.mkdir(u"c")).entries.empty());
    line = __LINE__ + 1;
    platform::caughtSilently(platform::FileError(platform::FileError::diskFull));
  }
  platform::caughtSilently(platform::FileError(platform::FileError::diskFull));
  EXPECT_EQ(linesOf(folder),
            (std::vector<std::string>{
                "create a: done", "writeAt a 0 +3: done", "flush a: done", "readAt a 1 +8: 2", "close a",
                "move a b: 58 File already exists", "fileExists a: yes", "list c: 0 entries",
                "caught 61 Disk full at traced_disk_test.cpp:" + std::to_string(line)}));
}

TEST(TracedDiskTest, WithoutAFileItIsTheDiskItself) {
  PosixFiles disk;
  TracedDisk traced(disk, "");
  EXPECT_EQ(&traced.files(), &disk);
  EXPECT_EQ(platform::currentTrace(), nullptr);
}

}  // namespace
}  // namespace velmora::system
