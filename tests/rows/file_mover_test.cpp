#include "rows/file_mover.h"

#include <gtest/gtest.h>

#include "system/posix_files.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

namespace velmora::rows {
namespace {

using platform::Answer;

/// A player that writes down what it is asked.
struct NotingHolder final : platform::FileHolder {
  Text held;
  std::vector<Text> log;
  bool holds(const Text& path) const override { return path == held; }
  void release() override { log.push_back(u"release"); }
  void giveBack(const Text& path) override { log.push_back(path); }
  void close() override { log.push_back(u"close"); }
};

struct FileMoverTest : testing::Test {
  test::TempFolder folder;
  system::PosixFiles files;
  test::ScriptedDialogs dialogs;
  NotingHolder player;
  ui::Failures failures{dialogs};
  FileMover mover{files, failures, player};

  Text failure(const Text& path) {
    return u"Error #53 while moving { " + path + u" } occurred: File not found";
  }
};

TEST_F(FileMoverTest, ANameThatIsTakenGetsBlanksBeforeItsLastFourCharacters) {
  folder.write(u"to/x.txt", "first");
  folder.write(u"to/x .txt", "second");
  const Text from = folder.write(u"x.txt", "third");
  Text reached;
  EXPECT_EQ(mover.move(from, folder.path(u"to/x.txt"), &reached), MoveResult::Moved);
  EXPECT_EQ(reached, folder.path(u"to/x  .txt"));
  EXPECT_EQ(folder.read(u"to/x.txt") + folder.read(u"to/x .txt") + folder.read(u"to/x  .txt"),
            "firstsecondthird");

  folder.write(u"to/ab", "fourth");
  EXPECT_EQ(mover.move(folder.write(u"ab", "fifth"), folder.path(u"to/ab")), MoveResult::Moved);
  EXPECT_EQ(folder.read(u"to/ ab"), "fifth") << "a short name has the blank in front";
}

TEST_F(FileMoverTest, AFileThatIsThereAlreadyStays) {
  const Text path = folder.write(u"x.txt", "x");
  EXPECT_EQ(mover.move(path, path), MoveResult::Moved);
  EXPECT_EQ(files.list(folder.path()).entries.size(), 1u);
}

TEST_F(FileMoverTest, AFailureAsksWhatToDo) {
  const Text path = folder.path(u"gone.txt");
  dialogs.expect(failure(path), u"Move File", Answer::Retry);
  dialogs.expect(failure(path), u"Move File", Answer::Ignore);
  EXPECT_EQ(mover.move(path, folder.path(u"to.txt")), MoveResult::Ignored);
  dialogs.expect(failure(path), u"Move File", Answer::Abort);
  EXPECT_EQ(mover.move(path, folder.path(u"to.txt")), MoveResult::Abort);
}

TEST_F(FileMoverTest, ThePlayerGoesOnAtTheNewPathOrAtTheOldOneAfterAFailure) {
  player.held = folder.write(u"x.mp3", "x");
  mover.move(player.held, folder.path(u"y.mp3"));
  EXPECT_EQ(player.log, (std::vector<Text>{u"release", folder.path(u"y.mp3")}));
  player.log.clear();
  dialogs.expectTitle(u"Move File", Answer::Ignore);
  mover.move(player.held, folder.path(u"z.mp3"));
  EXPECT_EQ(player.log, (std::vector<Text>{u"release", player.held}));
}

}  // namespace
}  // namespace velmora::rows
