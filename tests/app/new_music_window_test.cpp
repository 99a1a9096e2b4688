#include <gtest/gtest.h>

#include "tests/support/headless_velmora.h"

namespace velmora::app {
namespace {

using platform::Answer;

struct NewMusicWindowTest : testing::Test {
  test::HeadlessVelmora program;
  ui::Form2& form2() { return program.windows().form2; }
  ui::Button& undo() { return form2().undoLastOperation; }
  ui::Button& undoNames() { return program.form1().repair.undoLastOperation; }

  /// Two songs in the New Music Window, which is in front, beside an empty base.
  void open() {
    program.song(u"in/Kora - Rain.mp3");
    program.song(u"in/Lumo - Dusk.mp3");
    program.settings.set(u"DirZaBazu", program.folder.mkdir(u"base"));
    program.startWithMusic();
    program.form1().assort.click();
    form2().onActivate();
    form2().List1.select({0}, 0);
  }
  void moveAll() {
    program.dialogs.expect(
        u"Congratulations, you was successfully moved all new music files into Music Base folder. ", u"Move",
        Answer::Ok);
    form2().moveGenre.click();
    EXPECT_EQ(program.table().brojfajlova(), 0);
  }
  bool inBase(TextView path) const { return program.folder.exists(u"base/" + Text(path)); }
};

TEST_F(NewMusicWindowTest, EachUndoIsOfferedWhereItsOperationIsTheLast) {
  open();
  program.form3().showProcessingWindow.click();
  program.form1().List4.select({0}, 0);
  program.form1().repair.replaceArtistTitle.click();
  ASSERT_TRUE(undoNames().enabled());
  program.restart();
  EXPECT_FALSE(undo().enabled()) << "at the start, before the window was ever open";

  program.form1().assort.click();
  form2().onActivate();
  form2().List1.select({0}, 0);
  moveAll();
  EXPECT_TRUE(undo().enabled());
  EXPECT_FALSE(undoNames().enabled());
  undo().click();
  EXPECT_FALSE(undo().enabled());
  EXPECT_TRUE(undoNames().enabled());
}

TEST_F(NewMusicWindowTest, AWindowThatComesToTheFrontDuringAMoveCountsBehindIt) {
  open();
  program.desktop.then([&] { program.form3().onActivate(); });
  moveAll();
  EXPECT_TRUE(inBase(u" Every Autors"));
  undo().click();
  EXPECT_FALSE(inBase(u" Every Autors")) << "the folders that a MOVE makes stand in the journal";

  program.form3().showNewMusic.click();
  form2().onActivate();
  const Text asked = u"New Folder Name:";
  program.dialogs.expectInput(asked, u"Create New Folder", u"Songs");
  program.form3().genres.newFolder.click();
  EXPECT_TRUE(inBase(u"Songs")) << "a command of the base works for the base, though its notice be late";
  EXPECT_FALSE(undo().enabled());
}

}  // namespace
}  // namespace velmora::app
