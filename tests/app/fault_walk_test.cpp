// A short script of commands with one fault of the file system, at every operation in turn.

#include <cstdlib>
#include <filesystem>
#include <functional>

#include "core/text.h"
#include "tests/support/base_house.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using platform::Answer;
using platform::Buttons;
using test::TreeSnapshot;

Answer goOn(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::Ok;
}
Answer giveUp(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Abort : Answer::Ok;
}
Answer tryAgain(Buttons buttons) {
  return buttons == Buttons::AbortRetryIgnore ? Answer::Retry : Answer::Cancel;
}

/// The n-th operation from now on fails; none with 0. A test that fails over it is told which one that was.
class Fault {
 public:
  Fault(test::FaultFiles& files, int nth)
      : files_(files), place_(static_cast<std::size_t>(files.operations() + nth - 1)) {
    constexpr int numbers[] = {platform::FileError::diskFull, platform::FileError::permissionDenied};
    if (nth > 0) files_.failAt(nth, numbers[nth % 2]);
  }
  ~Fault() {
    if (testing::Test::HasFailure() && place_ < files_.log.size())
      ADD_FAILURE() << "after a fault in: " << files_.log.at(place_);
  }
  Fault(const Fault&) = delete;
  Fault& operator=(const Fault&) = delete;
  void pass() { files_.failNoMore(); }

 private:
  test::FaultFiles& files_;
  std::size_t place_;
};

/// One run of the program; the fixture makes one for each place of the fault.
class Walk : public test::RepairHouse {
 public:
  void start() {
    add({{u"arvola_one", {.title = u"arvola_one"}, {.title = u"arvola_one"}},
         {u"kora - two", {.title = u"two", .artist = u"kora"}},
         {u"3 bare"}});
    before_ = names();
    for (const std::string& name : before_) tagsBefore_.push_back(tagsOf(core::fromBytes(name)));
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
  /// What holds after any fault, whatever the user answers.
  void expectNothingLost() {
    expectAtRest();
    int songs = 0;
    for (const TextView folder : {u"music/in", u"trash/files"}) {
      const Text path = program.folder.path(folder);
      if (!program.files.folderExists(path)) continue;
      for (const auto& entry : program.files.list(path).entries)
        if (program.files.readAll(path + u"/" + entry.name).find(music_) != Bytes::npos) ++songs;
    }
    EXPECT_EQ(songs, 3) << "each song is there, once, with its music whole";
  }
  void expectTagsBack() {
    for (std::size_t i = 0; i < before_.size(); ++i)
      EXPECT_EQ(tagsOf(core::fromBytes(before_[i])), tagsBefore_[i]);
  }
  const std::vector<std::string>& namesBefore() const { return before_; }
  Text music() const { return program.musicFolder(); }

 private:
  std::vector<std::string> before_;
  std::vector<std::string> tagsBefore_;
  Bytes music_;
};

/// Runs a script, of a house made ready for it, with a fault at each operation in turn, or at each
/// `stride`-th one; `check` sees the house when the disk works again.
template <typename House>
void sweep(void (House::*before)(), void (House::*script)(), int stride, Answer (*answer)(Buttons),
           const std::function<void(House&)>& check) {
  const auto run = [&](int nth) {
    House walk;
    walk.start();
    if (before) (walk.*before)();
    if (nth > 0) walk.program.dialogs.otherwise = answer ? answer : nth % 2 == 0 ? goOn : giveUp;
    walk.program.faults.tearsWrites = !before;
    const int first = walk.program.faults.operations();
    Fault fault(walk.program.faults, nth);
    (walk.*script)();
    const int operations = walk.program.faults.operations() - first;
    fault.pass();
    if (nth > 0) check(walk);
    return operations;
  };
  const int operations = run(0);
  ASSERT_GT(operations, 30);
  for (int nth = 1; nth <= operations && !testing::Test::HasFailure(); nth += stride) run(nth);
}

TEST(FaultWalk, WhateverFailsInTheCommandsTheUndoBringsBackWhatWasDone) {
  sweep<Walk>(nullptr, &Walk::commands, 1, nullptr, [](Walk& walk) {
    walk.expectNothingLost();
    walk.undoAll();
    walk.expectNothingLost();
    EXPECT_EQ(walk.names(), walk.namesBefore());
  });
}

TEST(FaultWalk, WhateverFailsInTheUndoIsBroughtBackByTryingAgain) {
  sweep<Walk>(&Walk::commands, &Walk::undoAll, 1, tryAgain, [](Walk& walk) {
    walk.undoAll();
    walk.expectNothingLost();
    EXPECT_EQ(walk.names(), walk.namesBefore());
    EXPECT_EQ(walk.listed(), walk.names());
    walk.expectTagsBack();
  });
}

TEST(FaultWalk, AnUndoThatGoesOnBehindAFaultLosesNothing) {
  sweep<Walk>(&Walk::commands, &Walk::undoAll, 3, goOn, [](Walk& walk) {
    walk.undoAll();
    walk.expectNothingLost();
  });
}

/// With VELMORA_FAULTS each operation fails in turn, else each sixth one.
int stride() {
  return std::getenv("VELMORA_FAULTS") ? 1 : 6;
}

/// New music that goes into a base on another volume, and a base that changes.
class BaseScript : public test::BaseHouse {
 public:
  BaseScript() : BaseHouse(true) {}
  void start() {
    program.dialogs.otherwise = goOn;
    BaseHouse::start(4);
    contents_ = contents();
    music_ = TreeSnapshot::of(music());
    base_ = TreeSnapshot::of(base());
  }
  void moves() {
    form2().Combo1.setText(u"New");
    pressInNewMusic(form2().nameGenre);
    click(form2().List1, u"Jazz");
    click(form2().List2, u"Kora ");
    click(form3().List1, u"Pop");
    pressInNewMusic(form2().moveArtist);
    click(form2().List1, u"-<< Every Autor >>-");
    pressInNewMusic(form2().moveGenre);
  }
  void changes() {
    const auto ren = [this](ui::ColumnCommands& column, auto& box, TextView name) {
      box.setText(Text(name));
      pressInBase(column.ren);
    };
    click(form3().List1, u"Pop");
    ren(form3().genres, form3().Combo1, u"POP");
    ren(form3().genres, form3().Combo1, u"pop");
    click(form3().List2, u"Kora");
    ren(form3().artists, form3().Text2, u"Lumo");
    ren(form3().albums, form3().Text3, u"");
    pressInBase(form3().albums.del);
  }
  void expectNothingLost() {
    expectAtRest();
    EXPECT_TRUE(contents() == contents_) << TreeSnapshot::of(base()) << TreeSnapshot::of(music());
  }
  void expectAllBack() {
    expectNothingLost();
    EXPECT_EQ(TreeSnapshot::of(music()), music_);
    EXPECT_EQ(TreeSnapshot::of(base()), base_);
    EXPECT_EQ(program.table().brojfajlova(), static_cast<int>(music_.files()));
  }

 private:
  std::multiset<Bytes> contents_;
  TreeSnapshot music_, base_;
};

TEST(BaseFaultWalk, WhateverFailsInAMoveTheUndoBringsBackWhatWasDone) {
  sweep<BaseScript>(nullptr, &BaseScript::moves, stride(), nullptr, [](BaseScript& walk) {
    walk.expectNothingLost();
    walk.undoAll();
    walk.expectAllBack();
  });
}

TEST(BaseFaultWalk, WhateverFailsInTheUndoOfAMoveIsBroughtBackByTryingAgain) {
  sweep<BaseScript>(&BaseScript::moves, &BaseScript::undoAll, stride(), tryAgain, [](BaseScript& walk) {
    walk.undoAll();
    walk.expectAllBack();
  });
}

TEST(BaseFaultWalk, WhateverFailsInAChangeOfTheBaseNoFileIsLost) {
  sweep<BaseScript>(nullptr, &BaseScript::changes, stride(), nullptr,
                    [](BaseScript& walk) { walk.expectNothingLost(); });
}

/// With a folder in the place of the journal no line of it can be written.
template <typename House>
void expectUntouched(void (House::*script)()) {
  House walk;
  walk.start();
  std::filesystem::remove(walk.program.folder.native(u"program/UndoData.txt"));
  walk.program.folder.mkdir(u"program/UndoData.txt");
  const TreeSnapshot before = TreeSnapshot::of(walk.music());
  walk.program.dialogs.shown.clear();
  walk.program.dialogs.otherwise = goOn;
  (walk.*script)();
  EXPECT_EQ(TreeSnapshot::of(walk.music()), before);
  EXPECT_EQ(walk.program.dialogs.shown.size(), 3u) << "each command says it once";
  walk.expectNothingLost();
}

TEST(FaultWalk, WhatCouldNotBeUndoneIsNotDone) {
  expectUntouched(&Walk::commands);
  expectUntouched(&BaseScript::moves);
}

}  // namespace
}  // namespace velmora
