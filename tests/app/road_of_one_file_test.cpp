// From an empty program folder into the base and half the way back, as a user goes it.

#include "tests/support/headless_velmora.h"
#include "tests/support/list_reader.h"
#include "tests/support/mp3_maker.h"

namespace velmora::app {
namespace {

using platform::Answer;
using test::Names;

struct RoadOfOneFile : testing::Test, test::ListReader {
  test::HeadlessVelmora program;
  ui::Form1& form1() { return program.form1(); }
  ui::Form2& form2() { return program.windows().form2; }
  ui::Form3& form3() { return program.form3(); }

  void song(TextView name, const test::SongTags& tags) const {
    constexpr int jazz = 8;
    constexpr int pop = 13;
    program.song(u"in/" + Text(name) + u".mp3",
                 test::mpegFrames() + test::id3v1Tag(tags, tags.genre == u"Jazz" ? jazz : pop));
  }
  bool inBase(TextView path) const { return program.folder.exists(u"base/" + Text(path)); }
  bool inNewMusic(TextView name) const { return program.folder.exists(u"music/in/" + Text(name)); }
  /// What the window system tells when the user goes to a window.
  static void goTo(const ui::Window& window) { window.onActivate(); }
};

TEST_F(RoadOfOneFile, FromAnEmptyProgramFolderIntoTheBase) {
  song(u"kora-river bend", {.album = u"First", .year = u"1998", .genre = u"Pop"});
  song(u"kora - rain", {.genre = u"Pop"});
  song(u"lumo - dusk", {.album = u"Night", .year = u"2001", .genre = u"Jazz"});
  song(u"arvola - gate", {.genre = u"Pop"});
  program.start();
  program.dialogs.expectFolder(u"Select main folder for Your Music Base", program.folder.mkdir(u"base"));
  form3().selectMainFolder.click();
  form3().showProcessingWindow.click();
  program.addFolder(program.folder.path(u"music/in"));
  form1().List4.select({0, 1, 2, 3}, 0);
  form1().repair.fixSyntax.click();
  form1().assort.click();
  ASSERT_TRUE(form2().visible() && form3().visible());
  EXPECT_EQ(form2().newLabel.text(), u"New: 4");

  goTo(form2());
  form2().scanTags.click();
  EXPECT_EQ(form2().List1.ListCount(), 4) << "both special rows, Pop and Jazz";
  goTo(form3());
  program.dialogs.expectInput(u"New Folder Name:", u"Create New Folder", u"Songs");
  form3().genres.newFolder.click();
  goTo(form2());
  click(form2().List1, {u"-<< Every Autor >>-"});
  click(form2().List2, {u"Kora "});
  form2().moveArtist.click();
  EXPECT_TRUE(inBase(u"Songs/Kora/First  1998/Kora - River Bend.mp3"));
  EXPECT_TRUE(inBase(u"Songs/Kora/Kora - Rain.mp3"));

  click(form2().List1, {u"Jazz"});
  ASSERT_TRUE(form3().List1.onDrop);
  form3().List1.onDrop(form2().List1.dragWord);
  EXPECT_TRUE(inBase(u"Jazz/Lumo/Night  2001/Lumo - Dusk.mp3"));
  constexpr int rowOf2001 = 2026 - 2001 + 1;
  for (const auto& [year, genres] : {std::pair{rowOf2001, Names{"Jazz"}}, {0, Names{"Jazz", "Songs"}}}) {
    form3().selectYears.click();
    form3().years.List9.select({year}, year);
    form3().years.ok.click();
    EXPECT_EQ(rows(form3().List1), genres);
  }

  goTo(form3());
  click(form3().List1, {u"Songs"});
  click(form3().List3, {u"First  1998"});
  form3().Text3.setText(u"Second  1999");
  program.dialogs.expect(u"Are you sure you want to RENAME selected folder(s)?", u"Rename", Answer::Ok);
  form3().albums.ren.click();
  EXPECT_TRUE(inBase(u"Songs/Kora/Second  1999/Kora - River Bend.mp3"));

  goTo(form2());
  form2().undoLastOperation.click();
  EXPECT_TRUE(inNewMusic(u"Lumo - Dusk.mp3"));
  EXPECT_FALSE(inBase(u"Jazz"));

  goTo(form3());
  click(form3().List1, {u"Songs"});
  const auto albums = chosen(form3().List3);
  program.restart();
  EXPECT_TRUE(form3().visible() && form2().visible());
  EXPECT_EQ(chosen(form3().List1), Names{"Songs"});
  EXPECT_EQ(rows(form3().List2), Names{"Kora"});
  EXPECT_EQ(chosen(form3().List3), albums);
  EXPECT_EQ(form2().newLabel.text(), u"New: 2");
}

TEST_F(RoadOfOneFile, TheLastMoveClosesTheNewMusicAndCanStillBeTakenBack) {
  song(u"kora - rain", {.genre = u"Pop"});
  program.settings.set(u"DirZaBazu", program.folder.mkdir(u"base"));
  program.startWithMusic();
  form1().assort.click();
  goTo(form2());
  click(form2().List1, {u"-<< Every Autor >>-"});
  program.dialogs.expect(
      u"Congratulations, you was successfully moved all new music files into Music Base folder. ", u"Move",
      Answer::Ok);
  form2().moveGenre.click();
  EXPECT_TRUE(inBase(u" Every Autors/kora/kora - rain.mp3"));
  EXPECT_FALSE(form2().visible());
  EXPECT_FALSE(form3().showNewMusic.enabled());

  program.restart();
  form2().undoLastOperation.click();
  EXPECT_TRUE(inNewMusic(u"kora - rain.mp3"));
  EXPECT_TRUE(form3().showNewMusic.enabled());
  EXPECT_FALSE(form2().undoLastOperation.enabled());
  EXPECT_TRUE(form3().enabled());
  form3().showNewMusic.click();
  EXPECT_EQ(form2().newLabel.text(), u"New: 1");
}

}  // namespace
}  // namespace velmora::app
