#include "system/program_folder.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdlib.h>
#include <string>

#include "system/desktop_trash.h"
#include "tests/support/temp_folder.h"

namespace velmora::system {
namespace {

/// Sets an environment variable, or takes it away, and puts it back at the end.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = ::getenv(name)) before_ = before;
    set(value);
  }
  ~Variable() { set(before_ ? before_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void set(const char* value) { value ? ::setenv(name_, value, 1) : ::unsetenv(name_); }
  const char* name_;
  std::optional<std::string> before_;
};

TEST(ProgramFolder, IsTheOneThatTheUserNames) {
  const test::TempFolder folder;
  const Variable home("VELMORA_HOME", folder.native(u"own place").c_str());
  EXPECT_EQ(programFolder(), folder.path(u"own place"));
  EXPECT_TRUE(folder.exists(u"own place")) << "made at first use";
  EXPECT_TRUE(canKeepFiles(folder.path(u"own place")));
}

TEST(ProgramFolder, OneThatCannotBeMadeIsChosenAllTheSame) {
  const Variable home("VELMORA_HOME", "/proc/nowhere");
  EXPECT_EQ(programFolder(), u"/proc/nowhere");
  EXPECT_FALSE(canKeepFiles(u"/proc/nowhere"));
  EXPECT_FALSE(canKeepFiles(u"/dev/null"));
}

TEST(ProgramFolder, LiesElseAmongTheUsersData) {
  const test::TempFolder folder;
  const Variable home("VELMORA_HOME", nullptr);
  const Variable user("HOME", folder.native(u"user").c_str());
  {
    const Variable data("XDG_DATA_HOME", folder.native(u"data").c_str());
    EXPECT_EQ(programFolder(), folder.path(u"data/velmora"));
    EXPECT_EQ(DesktopTrash::defaultHomeTrash(), folder.path(u"data/Trash"));
  }
  const Variable data("XDG_DATA_HOME", "not/a/full/path");
  EXPECT_EQ(programFolder(), folder.path(u"user/.local/share/velmora"));
}

TEST(ProgramFolder, ShippedFilesAreFoundFromABuildTree) {
  EXPECT_TRUE(shippedFolder().ends_with(u"/resources"));
}

TEST(InstanceLock, TellsTheSecondOfTwo) {
  const test::TempFolder folder;
  {
    const InstanceLock first(folder.path());
    EXPECT_FALSE(first.anotherInstanceRunning());
    const InstanceLock second(folder.path());
    EXPECT_TRUE(second.anotherInstanceRunning());
    const test::TempFolder elsewhere;
    EXPECT_FALSE(InstanceLock(elsewhere.path()).anotherInstanceRunning());
  }
  EXPECT_FALSE(InstanceLock(folder.path()).anotherInstanceRunning());
  EXPECT_FALSE(InstanceLock(folder.path(u"missing")).anotherInstanceRunning());
}

}  // namespace
}  // namespace velmora::system
