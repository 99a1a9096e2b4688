// From an empty program folder into the base and half the way back, as a user goes it.

#include <gtest/gtest.h>

#include "tests/support/headless_velmora.h"
#include "tests/support/mp3_maker.h"

namespace velmora::app {
namespace {

using platform::Answer;

struct RoadOfOneFile : testing::Test {
  test::HeadlessVelmora program;
  ui::Form1& form1() { return program.form1(); }
  ui::Form2& form2() { return program.windows().form2; }
  ui::Form3& form3() { return program.form3(); }

  void song(TextView name, const test::SongTags& tags) const {
    program.song(u"in/" + Text(name) + u".mp3", test::mpegFrames() + test::id3v1Tag(tags, genreOf(tags)));
  }
  static int genreOf(const test::SongTags& tags) {
    constexpr int jazz = 8;
    constexpr int pop = 13;
    return tags.genre == u"Jazz" ? jazz : pop;
  }
  bool inBase(TextView path) { return program.files.fileExists(program.folder.path(u"base/" + Text(path))); }
  bool inNewMusic(TextView name) {
    return program.files.fileExists(program.folder.path(u"music/in/" + Text(name)));
  }

  static std::vector<Text> rows(const ui::ListBox& list) {
    std::vector<Text> rows;
    for (int index = 0; index < list.ListCount(); ++index) rows.push_back(list.List(index));
    return rows;
  }
  static std::vector<Text> selected(const ui::ListBox& list) {
    std::vector<Text> rows;
    for (const int index : list.selectedIndexes()) rows.push_back(list.List(index));
    return rows;
  }
  /// As the user clicks a row.
  static void click(ui::ListBox& list, TextView text) {
    for (int index = 0; index < list.ListCount(); ++index)
      if (list.List(index) == text) return list.select({index}, index);
    ADD_FAILURE() << "no such row";
  }
  /// What the window system tells when the user goes to a window.
  static void goTo(const ui::Window& window) { window.onActivate(); }

  void makeCollection() {
    song(u"kora-river bend", {.album = u"First", .year = u"1998", .genre = u"Pop"});
    song(u"kora - rain", {.genre = u"Pop"});
    song(u"lumo - dusk", {.album = u"Night", .year = u"2001", .genre = u"Jazz"});
    song(u"lumo - dawn", {.album = u"Night", .year = u"2001", .genre = u"Jazz"});
    song(u"arvola - gate", {.genre = u"Pop"});
  }
  void addAndRepair() {
    program.form3().showProcessingWindow.click();
    program.addFolder(program.folder.path(u"music/in"));
    form1().List4.select({0, 1, 2, 3, 4}, 0);
    form1().repair.fixSyntax.click();
    form1().assort.click();
  }
};

TEST_F(RoadOfOneFile, FromAnEmptyProgramFolderIntoTheBase) {
  makeCollection();
  program.folder.mkdir(u"base");
  program.start();
  program.dialogs.expectFolder(u"Select main folder for Your Music Base", program.folder.path(u"base"));
  form3().selectMainFolder.click();
  addAndRepair();
  ASSERT_TRUE(form2().visible());
  ASSERT_TRUE(form3().visible());
  EXPECT_EQ(form2().newLabel.text(), u"New: 5");
  EXPECT_EQ(form3().showNewMusic.caption(), u"     Hide New Music Window    ");

  goTo(form2());
  form2().scanTags.click();
  EXPECT_EQ(rows(form2().List1).size(), 4u) << "both special rows, Pop and Jazz";
  EXPECT_TRUE(form2().enabled());
  EXPECT_TRUE(form3().enabled());

  goTo(form3());
  program.dialogs.expectInput(u"New Folder Name:", u"Create New Folder", u"Songs");
  form3().genres.newFolder.click();
  EXPECT_EQ(selected(form3().List1), std::vector<Text>{u"Songs"});

  goTo(form2());
  click(form2().List1, u"-<< Every Autor >>-");
  click(form2().List2, u"Kora ");
  form2().moveArtist.click();
  EXPECT_TRUE(inBase(u"Songs/Kora/First  1998/Kora - River Bend.mp3"));
  EXPECT_TRUE(inBase(u"Songs/Kora/Kora - Rain.mp3"));
  EXPECT_EQ(form2().newLabel.text(), u"New: 3");

  click(form2().List1, u"Jazz");
  ASSERT_TRUE(form3().List1.onDrop);
  form3().List1.onDrop(form2().List1.dragWord);
  EXPECT_TRUE(inBase(u"Jazz/Lumo/Night  2001/Lumo - Dusk.mp3"));
  EXPECT_EQ(rows(form3().List1), (std::vector<Text>{u"Jazz", u"Songs"}));
  EXPECT_TRUE(form2().undoLastOperation.enabled());

  goTo(form3());
  click(form3().List1, u"Songs");
  EXPECT_EQ(rows(form3().List2), std::vector<Text>{u"Kora"});
  click(form3().List3, u"First  1998");
  EXPECT_EQ(rows(form3().List8), std::vector<Text>{u"River Bend"});

  constexpr int rowOf2001 = 2026 - 2001 + 1;
  form3().selectYears.click();
  form3().years.List9.select({rowOf2001}, rowOf2001);
  form3().years.ok.click();
  EXPECT_EQ(rows(form3().List1), std::vector<Text>{u"Jazz"});
  form3().selectYears.click();
  form3().years.List9.select({0}, 0);
  form3().years.ok.click();

  click(form3().List1, u"Songs");
  click(form3().List3, u"First  1998");
  form3().Text3.setText(u"Second  1999");
  program.dialogs.expect(u"Are you sure you want to RENAME selected folder(s)?", u"Rename", Answer::Ok);
  form3().albums.ren.click();
  EXPECT_TRUE(inBase(u"Songs/Kora/Second  1999/Kora - River Bend.mp3"));
  EXPECT_EQ(selected(form3().List3), std::vector<Text>{u"Second  1999"});

  goTo(form2());
  form2().undoLastOperation.click();
  EXPECT_TRUE(inNewMusic(u"Lumo - Dusk.mp3"));
  EXPECT_TRUE(inNewMusic(u"Lumo - Dawn.mp3"));
  EXPECT_FALSE(program.files.folderExists(program.folder.path(u"base/Jazz")));
  EXPECT_EQ(form2().newLabel.text(), u"New: 3");
  EXPECT_EQ(program.table().brojfajlova(), 3);

  goTo(form3());
  click(form3().List1, u"Songs");
  const auto artists = rows(form3().List2);
  const auto albums = selected(form3().List3);
  program.restart();
  EXPECT_TRUE(form3().visible());
  EXPECT_TRUE(form2().visible());
  EXPECT_EQ(selected(form3().List1), std::vector<Text>{u"Songs"});
  EXPECT_EQ(rows(form3().List2), artists);
  EXPECT_EQ(selected(form3().List3), albums);
  EXPECT_EQ(form2().newLabel.text(), u"New: 3");
}

TEST_F(RoadOfOneFile, TheLastMoveClosesTheNewMusicAndCanStillBeTakenBack) {
  song(u"kora - rain", {.genre = u"Pop"});
  program.settings.set(u"DirZaBazu", program.folder.mkdir(u"base"));
  program.startInProcessingWindow();
  program.addFolder(program.folder.path(u"music/in"));
  form1().assort.click();
  goTo(form2());
  click(form2().List1, u"-<< Every Autor >>-");
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
