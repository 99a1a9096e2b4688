// A short script of commands with one fault of the file system, at every operation in turn.

#include "core/text.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using platform::Answer;
using platform::Buttons;

constexpr int disks[] = {platform::FileError::diskFull, platform::FileError::permissionDenied};

/// One run of the program; the fixture makes one for each place of the fault.
class Walk : public test::RepairHouse {
 public:
  void start() {
    add({{u"arvola_one", {.title = u"arvola_one"}, {.title = u"arvola_one"}},
         {u"kora - two", {.title = u"two", .artist = u"kora"}},
         {u"3 bare"}});
    before_ = names();
    for (const std::string& name : before_) tagsBefore_.push_back(tagsOf(name));
    music_ = test::mpegFrames();
    music_.resize(music_.size() - 4);
    form1().tags.writeID3v1.setChecked(true);
  }
  void commands() {
    selectAll();
    tools().fixSyntax.click();
    selectAll();
    tools().fnToId3.click();
    form1().List4.select({0}, 0);
    form1().List4.onKey({ui::Key::Delete, true});
  }
  void undoAll() {
    for (int i = 0; i < 20 && tools().undoLastOperation.enabled(); ++i) tools().undoLastOperation.click();
  }
  /// What holds after any fault, whatever the user answers.
  void expectNothingLost() {
    EXPECT_TRUE(form1().enabled());
    EXPECT_FALSE(program.windows().dialog1.visible());
    EXPECT_EQ(program.table().puniliste, 0);
    int songs = 0;
    for (const TextView folder : {u"music/in", u"trash/files"}) {
      const Text path = program.folder.path(folder);
      if (!program.files.folderExists(path)) continue;
      for (const auto& entry : program.files.list(path).entries)
        if (program.files.readAll(path + u"/" + entry.name).find(music_) != Bytes::npos) ++songs;
    }
    EXPECT_EQ(songs, 3) << "each song is there, once, with its music whole: " << fault();
  }
  void expectTagsBack() {
    for (std::size_t i = 0; i < before_.size(); ++i) EXPECT_EQ(tagsOf(before_[i]), tagsBefore_[i]) << fault();
  }
  const std::vector<std::string>& namesBefore() const { return before_; }

  /// The n-th operation from now on fails.
  void failAt(int nth) {
    first_ = program.faults.operations();
    nth_ = nth;
    program.faults.failAt(nth, disks[nth % 2]);
  }
  /// What the operation was.
  const std::string& fault() const {
    return program.faults.log.at(static_cast<std::size_t>(first_ + nth_ - 1));
  }

 private:
  std::string tagsOf(const std::string& name) {
    return first(core::fromBytes(name)) + " / " + second(core::fromBytes(name));
  }

  int first_ = 0;
  int nth_ = 0;
  std::vector<std::string> before_;
  std::vector<std::string> tagsBefore_;
  Bytes music_;
};

Answer goOn(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::Ok;
}
Answer giveUp(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Abort : Answer::Cancel;
}
Answer tryAgain(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Retry : Answer::Cancel;
}

/// Operations that the script makes on a disk without faults.
int countOperations(void (Walk::*script)()) {
  Walk walk;
  walk.start();
  if (script == &Walk::undoAll) walk.commands();
  const int first = walk.program.faults.operations();
  (walk.*script)();
  return walk.program.faults.operations() - first;
}

TEST(FaultWalk, WhateverFailsInTheCommandsTheUndoBringsBackWhatWasDone) {
  const int operations = countOperations(&Walk::commands);
  ASSERT_GT(operations, 50);
  for (int nth = 1; nth <= operations && !testing::Test::HasFailure(); ++nth) {
    SCOPED_TRACE("fault at operation " + std::to_string(nth));
    Walk walk;
    walk.start();
    walk.program.dialogs.otherwise = nth % 2 == 0 ? goOn : giveUp;
    walk.program.faults.tearsWrites = true;
    walk.failAt(nth);
    walk.commands();
    walk.program.faults.failNoMore();
    walk.expectNothingLost();
    walk.undoAll();
    walk.expectNothingLost();
    EXPECT_EQ(walk.names(), walk.namesBefore()) << walk.fault();
  }
}

TEST(FaultWalk, WhateverFailsInTheUndoIsBroughtBackByTryingAgain) {
  const int operations = countOperations(&Walk::undoAll);
  ASSERT_GT(operations, 30);
  for (int nth = 1; nth <= operations && !testing::Test::HasFailure(); ++nth) {
    SCOPED_TRACE("fault at operation " + std::to_string(nth));
    Walk walk;
    walk.start();
    walk.commands();
    walk.program.dialogs.otherwise = tryAgain;
    walk.failAt(nth);
    walk.undoAll();
    walk.program.faults.failNoMore();
    walk.undoAll();
    walk.expectNothingLost();
    EXPECT_EQ(walk.names(), walk.namesBefore()) << walk.fault();
    EXPECT_EQ(walk.listed(), walk.names()) << walk.fault();
    walk.expectTagsBack();
  }
}

TEST(FaultWalk, AnUndoThatGoesOnBehindAFaultLosesNothing) {
  const int operations = countOperations(&Walk::undoAll);
  for (int nth = 1; nth <= operations && !testing::Test::HasFailure(); nth += 3) {
    SCOPED_TRACE("fault at operation " + std::to_string(nth));
    Walk walk;
    walk.start();
    walk.commands();
    walk.program.dialogs.otherwise = goOn;
    walk.failAt(nth);
    walk.undoAll();
    walk.program.faults.failNoMore();
    walk.undoAll();
    walk.expectNothingLost();
  }
}

}  // namespace
}  // namespace velmora
