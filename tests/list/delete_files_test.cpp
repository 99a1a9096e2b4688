#include "list/delete_files.h"

#include <algorithm>

#include "core/text.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using test::Names;

struct DeleteFilesTest : test::RepairBench {
  void pressDelete(bool shift = false) { form1().List4.onKey({ui::Key::Delete, shift}); }
  std::size_t trashed() {
    const Text folder = program.folder.path(u"trash/files");
    return program.files.folderExists(folder) ? program.files.list(folder).entries.size() : 0;
  }
  std::size_t infoFiles() { return program.files.list(program.folder.path(u"trash/info")).entries.size(); }
  void askFor(platform::Answer answer) {
    program.dialogs.expect(u"Are you sure you want to send selected files(s) to the Recycle Bin?", u"Delete",
                           answer);
  }
};

TEST_F(DeleteFilesTest, SelectedFilesGoToTheTrashAndComeBack) {
  add({{u"a - one"}, {u"b - two"}, {u"c - three"}});
  const double bytes = program.table().velicinasfiles;
  select({u"a - one", u"c - three"});
  askFor(platform::Answer::Ok);
  pressDelete();
  EXPECT_EQ(names(), (Names{"b - two"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(trashed(), 2U);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "izb", "del", "izb", "del"}));
  EXPECT_EQ(form1().countLabel.text(), u" 1  new songs ");
  EXPECT_LT(program.table().velicinasfiles, bytes);
  EXPECT_EQ(program.table().autori.size(), 1U);

  program.restart();
  EXPECT_EQ(listed(), (Names{"b - two"}));
  undo();
  EXPECT_EQ(names(), (Names{"a - one", "b - two", "c - three"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(trashed(), 0U);
  EXPECT_EQ(infoFiles(), 0U) << "no stale info file is left";
  EXPECT_EQ(program.table().velicinasfiles, bytes);
  EXPECT_EQ(form1().List4.SelCount(), 2);
  EXPECT_EQ(form1().path.text(), pathOf(u"c - three")) << "what is selected again is shown again";
  EXPECT_EQ(kinds(), Names{});
  EXPECT_FALSE(tools().undoLastOperation.enabled());
}

TEST_F(DeleteFilesTest, CancelKeepsThemAndShiftDoesNotAsk) {
  add({{u"a"}, {u"b"}});
  select({u"a"});
  askFor(platform::Answer::Cancel);
  pressDelete();
  EXPECT_EQ(names().size(), 2U);
  EXPECT_EQ(kinds(), Names{});
  pressDelete(true);
  EXPECT_EQ(names(), (Names{"b"}));
  EXPECT_EQ(form1().Text1.text(), u"") << "the boxes speak of no file that is gone";
  EXPECT_FALSE(tools().rename.enabled());
}

TEST_F(DeleteFilesTest, APlayingFileIsLetGoFirst) {
  add({{u"a"}});
  program.media.know(pathOf(u"a"), 60);
  select({u"a"});
  form1().List4.doubleClick();
  pressDelete(true);
  EXPECT_TRUE(program.media.file().empty());
  EXPECT_EQ(names(), Names{});
}

TEST_F(DeleteFilesTest, AFileThatCannotGoKeepsItsRow) {
  add({{u"a"}, {u"b"}});
  selectAll();
  bool once = true;
  program.faults.onOperation = [&] {
    const std::string& line = program.faults.log.back();
    if (once && line.starts_with("move ") && line.find("/b.mp3") != std::string::npos) {
      once = false;
      program.faults.failAt(1, platform::FileError::permissionDenied);
    }
  };
  program.dialogs.expect(u"1 file was not deleted: Permission denied.\n\n" + pathOf(u"b"), u"Delete",
                         platform::Answer::Ok);
  pressDelete(true);
  EXPECT_EQ(names(), (Names{"b"}));
  EXPECT_EQ(listed(), (Names{"b"}));
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "izb", "del"}));
}

TEST_F(DeleteFilesTest, StopEndsBothDeletionsBetweenTwoFiles) {
  program.song(u"in/1.txt");
  program.song(u"in/2.txt");
  add({{u"a"}, {u"b"}});
  const auto deleteAllAndStop = [this] {
    selectAll();
    program.faults.onOperation = [this] {
      if (program.faults.log.back().starts_with("move ")) program.table().Stop = true;
    };
    pressDelete(true);
  };
  deleteAllAndStop();
  EXPECT_EQ(listed().size(), 1u);
  form1().ostali.click();
  deleteAllAndStop();
  EXPECT_EQ(form1().List4.ListCount(), 1);
  EXPECT_EQ(names().size(), 2u);
}

TEST_F(DeleteFilesTest, ARowWhoseFileIsGoneAlreadyGoesWithoutARecordOfTheTrash) {
  add({{u"a"}, {u"b"}});
  program.files.remove(pathOf(u"a"));
  select({u"a"});
  pressDelete(true);
  EXPECT_EQ(listed(), (Names{"b"}));
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "izb"}));
}

TEST_F(DeleteFilesTest, WhatIsNoLongerInTheTrashIsToldAndTheRestComesBack) {
  add({{u"a"}, {u"b"}, {u"c"}});
  selectAll();
  pressDelete(true);
  program.folder.write(u"trash/files/a.mp3", "cut");
  program.files.remove(program.folder.path(u"trash/files/b.mp3"));
  std::vector<Text> lost = {pathOf(u"a"), pathOf(u"b")};
  program.dialogs.expectTitle(u"Undo", platform::Answer::Ok);
  program.dialogs.expectTitle(u"Undo", platform::Answer::Ok);
  undo();
  std::ranges::sort(program.dialogs.shown);
  EXPECT_EQ(core::toBytes(program.dialogs.shown[0]),
            "Canot Undelete. File " + core::toBytes(lost[0]) + " is not in recycle bin.");
  EXPECT_EQ(program.dialogs.lastIcon, platform::Icon::Critical);
  EXPECT_EQ(names(), (Names{"c"}));
  EXPECT_EQ(listed(), (Names{"c"})) << "the rows of lost files stay out";
}

TEST_F(DeleteFilesTest, AFileWhoseNameIsTakenComesBackBesideTheOther) {
  add({{u"a"}});
  selectAll();
  pressDelete(true);
  program.folder.write(u"music/in/a.mp3", "another");
  undo();
  EXPECT_EQ(names(), (Names{"a", "a "}));
  EXPECT_EQ(listed(), (Names{"a "})) << "the row speaks of the file that came back";
  EXPECT_EQ(program.folder.read(u"music/in/a.mp3"), "another");
}

TEST_F(DeleteFilesTest, OtherFilesGoWithoutRecords) {
  program.song(u"in/cover.jpg");
  program.song(u"in/notes.txt");
  add({{u"a"}});
  form1().ostali.click();
  form1().List4.select({0}, 0);
  const Text gone = form1().List4.List(0);
  askFor(platform::Answer::Cancel);
  pressDelete();
  program.dialogs.expect(u"Are you shure you want to send selected files(s) to the Recycle Bin?", u"Delete",
                         platform::Answer::Ok);
  click(tools().deleteFiles);
  EXPECT_FALSE(program.files.fileExists(gone));
  EXPECT_EQ(form1().List4.ListCount(), 1);
  EXPECT_EQ(program.table().niznomusic.size(), 1U);
  EXPECT_EQ(form1().countLabel.text(), u" 1  files ");
  EXPECT_EQ(kinds(), (Names{"st1", "bi1"}));
  EXPECT_EQ(program.table().brojfajlova(), 1);
}

TEST_F(DeleteFilesTest, SongsOfAnArtistGoAndTheNextLineIsSelected) {
  add({{u"Arvola - one"}, {u"Arvola - two"}, {u"Kora - rain"}});
  program.table().vrsta = core::Review::ArtistList;
  form1().List1.AddItem(u"Arvola ");
  form1().List1.select({0}, 0);
  ASSERT_EQ(form1().List2.ListCount(), 2);
  form1().List2.select({0}, 0);
  program.dialogs.expect(u"Are you sure you want to send selected files(s) to recycle bin?", u"Delete",
                         platform::Answer::Ok);
  form1().List2.onKey({ui::Key::Delete, false});
  EXPECT_EQ(names().size(), 2U);
  EXPECT_EQ(form1().List2.ListCount(), 1);
  EXPECT_TRUE(form1().List2.Selected(0));
}

}  // namespace
}  // namespace velmora
