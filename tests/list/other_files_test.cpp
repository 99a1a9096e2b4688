#include "list/other_files.h"

#include "tests/list/list_world.h"

namespace velmora::list {
namespace {

using platform::Answer;
using test::Texts;

struct OtherFilesTest : test::ListWorld {
  ui::ListBox& list = windows.form8.list;
  Texts paths;

  void SetUp() override {
    for (const TextView name : {u"a.txt", u"b.txt", u"c.txt", u"d.txt"})
      paths.push_back(folder.write(u"other/" + Text(name), Bytes(1, static_cast<char>(name[0]))));
    table.niznomusic = paths;
    other.open();
  }
  void expectRows(const Texts& rows) {
    EXPECT_EQ(rowsOf(list), rows);
    EXPECT_EQ(table.niznomusic, rows);
    EXPECT_EQ(data.readList(u"niznomusic.txt"), rows);
    expectAtRest();
  }
};

TEST_F(OtherFilesTest, DeleteSendsTheSelectedFilesToTheTrash) {
  EXPECT_TRUE(windows.form8.visible());
  other.deleteSelected();
  EXPECT_EQ(trash.sent, Texts()) << "nothing is selected";
  form1.ostali.setChosen(true);
  list.select({0, 2}, 2);
  media.setFile(paths[2]);
  other.deleteSelected();
  EXPECT_EQ(trash.sent, (Texts{paths[0], paths[2]}));
  EXPECT_EQ(media.file(), u"") << "the player lets go first";
  expectRows({paths[1], paths[3]});
  EXPECT_EQ(rowsOf(form1.List4), (Texts{paths[1], paths[3]})) << "the view of the other files follows";
  EXPECT_EQ(form1.countLabel.text(), u" 2  files ");
}

TEST_F(OtherFilesTest, AFileThatCannotBeSentKeepsItsRowAndEndsTheWalk) {
  files.remove(paths[0]);
  trash.refused = paths[1];
  list.select({0, 1, 2}, 2);
  dialogs.expect(u"Error #70 while deleting { " + paths[1] + u" } occurred: Permission denied", u"Delete",
                 Answer::Ok);
  other.deleteSelected();
  expectRows({paths[1], paths[2], paths[3]});
}

TEST_F(OtherFilesTest, StopEndsTheWalkAtTheNextFile) {
  list.select({0, 1, 2}, 2);
  desktop.then([this] { progress.stop(); });
  other.deleteSelected();
  EXPECT_EQ(trash.sent, Texts());
  expectRows(paths);
}

TEST_F(OtherFilesTest, MoveToTakesTheSelectedFilesAndNeverOverwrites) {
  const Text title = u"Select folder where you want to move selected files.";
  folder.write(u"to/a.txt", "x");
  list.select({0, 3}, 3);
  dialogs.expectFolder(title, std::nullopt);
  other.moveSelected();
  EXPECT_EQ(table.niznomusic, paths);
  dialogs.expectFolder(title, folder.path(u"to"));
  other.moveSelected();
  EXPECT_EQ(folder.read(u"to/a.txt") + folder.read(u"to/a .txt") + folder.read(u"to/d.txt"), "xad");
  expectRows({paths[1], paths[2]});
}

TEST_F(OtherFilesTest, IgnoreKeepsTheFileAndAbortEndsTheMove) {
  const auto pick = [this] {
    list.select({0, 1, 2}, 2);
    dialogs.expectFolder(u"Select folder where you want to move selected files.", folder.path(u"to"));
  };
  folder.mkdir(u"to");
  files.remove(paths[0]);
  pick();
  dialogs.expectTitle(u"Move File", Answer::Abort);
  other.moveSelected();
  expectRows(paths);
  pick();
  dialogs.expectTitle(u"Move File", Answer::Ignore);
  other.moveSelected();
  expectRows({paths[0], paths[3]});
}

TEST_F(OtherFilesTest, RowsBeyondTheDisplayLimitStay) {
  table.niznomusic.insert(table.niznomusic.end(), 32734, u"/gone.txt");
  table.niznomusic.push_back(u"/last.txt");
  dialogs.expect(
      u"There is to many files. Program can display only 32737 files on list. When process these files, "
      u"make list again to display other files.",
      u"Make List", Answer::Ok);
  other.open();
  EXPECT_EQ(list.ListCount(), 32736);
  list.select({0}, 0);
  other.deleteSelected();
  EXPECT_EQ(table.niznomusic.size(), 32738u);
  EXPECT_EQ(table.niznomusic.back(), u"/last.txt");
}

}  // namespace
}  // namespace velmora::list
