#include "app/work.h"

#include <gtest/gtest.h>
#include <string>

#include "platform/file_error.h"

namespace velmora::app {
namespace {

struct WorkTest : testing::Test {
  core::TrackTable table;
  Work work{table};
  std::string log;

  std::function<void()> note(char what) {
    return [this, what] { log += what; };
  }
};

TEST_F(WorkTest, RunsOneCommandAtATime) {
  work.run([&] {
    note('a')();
    work.run(note('b'));
  });
  work.run(note('c'));
  EXPECT_EQ(log, "ac");
}

TEST_F(WorkTest, LetsCommandsRunInsideAWait) {
  work.run([&] {
    work.wait([&] { work.run(note('a')); });
    work.run(note('b'));
  });
  EXPECT_EQ(log, "a");
}

TEST_F(WorkTest, PutsOffUntilTheOutermostCommandHasReturned) {
  work.onCommandDone = note('.');
  work.run([&] {
    work.wait([&] { work.run([&] { work.whenAtRest(note('z')); }); });
    EXPECT_TRUE(table.Stop);
    note('a')();
  });
  EXPECT_EQ(log, ".a.z");
  work.whenAtRest(note('y'));
  EXPECT_EQ(log, ".a.zy");
}

TEST_F(WorkTest, LaterActionTakesThePlaceOfAnEarlierOne) {
  work.run([&] {
    work.whenAtRest(note('a'));
    work.whenAtRest(note('b'));
  });
  EXPECT_EQ(log, "b");
}

TEST_F(WorkTest, WhatWasPutOffDuringAnActionFollowsIt) {
  work.whenAtRest([&] {
    work.whenAtRest(note('b'));
    note('a')();
  });
  EXPECT_EQ(log, "ab");
}

TEST_F(WorkTest, FailedFileOperationEndsTheCommandButNotWhatFollows) {
  work.onCommandDone = note('.');
  work.run([&] {
    work.whenAtRest(note('z'));
    throw platform::FileError(platform::FileError::diskFull);
  });
  work.run(note('a'));
  EXPECT_EQ(log, ".za.");
}

TEST_F(WorkTest, EachCommandOfTheUserBeginsWithStopCleared) {
  table.Stop = true;
  work.run([&] { EXPECT_FALSE(table.Stop); });
}

}  // namespace
}  // namespace velmora::app
