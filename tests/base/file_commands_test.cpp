#include "base/file_commands.h"

#include "tests/base/base_world.h"

namespace velmora {
namespace {

using platform::Answer;
using test::Names;

struct FileCommandsTest : test::BaseWorld {
  FileCommandsTest() {
    make({u"R/A/Al 2001/A - one.mp3", u"R/A/Al 2001/A - two.mp3", u"R/A/A - own.mp3", u"R/B/A - own.mp3"});
    lists.IzlistajBazu();
    click(form3.List1, {u"R"});
  }
  void ren(const Text& title, const Text& name) {
    click(form3.List8, {title});
    form3.Text4.setText(name);
    answer(u"Are you sure you want to RENAME selected file?", u"Rename");
    room.fileCommands.ren();
  }
  void del(Answer given = Answer::Ok) {
    answer(u"Are you sure you want to DELETE selected file(s)?", u"Delete", given);
    room.fileCommands.del();
  }
};

TEST_F(FileCommandsTest, RenKeepsTheArtistAndTheExtension) {
  media.setFile(at(u"R/A/Al 2001/A - one.mp3"));
  ren(u"one", u"Uno: \"1/2\"");
  EXPECT_EQ(content(u"R/A/Al 2001/A - Uno   1 2 .mp3"), "R/A/Al 2001/A - one.mp3");
  EXPECT_EQ(chosen(form3.List8), Names{"Uno   1 2 "});
  EXPECT_EQ(media.file(), at(u"R/A/Al 2001/A - Uno   1 2 .mp3"));
  form3.showAutor.setChecked(true);
  lists.fillTitles();
  ren(u"A - own", u"A - mine");
  EXPECT_TRUE(there(u"R/A/A - mine.mp3") && there(u"R/B/A - own.mp3"));
  ren(u"A - two", u"B - deux");
  EXPECT_EQ(content(u"R/A/Al 2001/B - deux.mp3"), "R/A/Al 2001/A - two.mp3");
  EXPECT_EQ(chosen(form3.List8), Names{"B - deux"});
  expectAtRest();
}

TEST_F(FileCommandsTest, RenNeverOverwrites) {
  click(form3.List8, {u"one"});
  form3.Text4.setText(u"two");
  answer(u"Are you sure you want to RENAME selected file?", u"Rename");
  answer(u"Canot rename. File already exists", u"Rename");
  room.fileCommands.ren();
  EXPECT_EQ(content(u"R/A/Al 2001/A - two.mp3"), "R/A/Al 2001/A - two.mp3");
  EXPECT_EQ(content(u"R/A/Al 2001/A - one.mp3"), "R/A/Al 2001/A - one.mp3");
}

TEST_F(FileCommandsTest, RenNeedsATitleANameAndAYes) {
  const test::TreeSnapshot before = snapshot();
  form3.Text4.setText(u"x");
  room.fileCommands.ren();
  room.fileCommands.del();
  click(form3.List8, {u"one"});
  form3.Text4.setText(u" ? ");
  answer(u"There's no new name.", u"Rename");
  room.fileCommands.ren();
  form3.Text4.setText(u"x");
  answer(u"Are you sure you want to RENAME selected file?", u"Rename", Answer::Cancel);
  room.fileCommands.ren();
  del(Answer::Cancel);
  form3.List8.select({0}, 1);
  room.fileCommands.ren();
  EXPECT_EQ(snapshot(), before) << "the row clicked last is not selected";
}

TEST_F(FileCommandsTest, DelSendsTheSelectedFilesInReverseOrder) {
  click(form3.List8, {u"own", u"two"});
  media.setFile(at(u"R/A/Al 2001/A - two.mp3"));
  del();
  EXPECT_EQ(trash.sent, (std::vector<Text>{at(u"R/A/Al 2001/A - two.mp3"), at(u"R/A/A - own.mp3")}));
  EXPECT_EQ(rows(form3.List8), Names{"one"});
  EXPECT_EQ(media.file(), u"");
  EXPECT_TRUE(there(u"R/A"));
  expectAtRest();
}

TEST_F(FileCommandsTest, DelTakesTheFileOfTheArtistWhoseRowItIs) {
  click(form3.List2, {u"A", u"B"});
  ASSERT_EQ(rows(form3.List4).at(1), "A - own.mp3");
  form3.List8.select({1}, 1);
  del();
  EXPECT_EQ(trash.sent, std::vector<Text>{at(u"R/B/A - own.mp3")});
  make({u"R/B/A - own.mp3"});
  click(form3.List2, {u"A", u"B"});
  folder.removeAll(u"base/R/A/A - own.mp3");
  form3.List8.select({0}, 0);
  del();
  EXPECT_TRUE(there(u"R/B/A - own.mp3")) << "the row of a file that has gone leads to no other";
}

}  // namespace
}  // namespace velmora
