#include "list/list_views.h"

#include "tests/list/list_world.h"
#include "ui/display_limit.h"

namespace velmora::list {
namespace {

using platform::Answer;
using test::Texts;

struct ListViewsTest : test::ListWorld {
  /// Adds a song for each name, one folder each, so that the rows stand in this order.
  void songs(const Texts& names) {
    for (const Text& name : names) {
      song(u"music/" + name + u"/" + name + u".mp3");
      add(u"music/" + name);
    }
  }
};

TEST_F(ListViewsTest, TheViewsShowMusicOrOtherFilesWithTheirCounts) {
  songs({u"Arvola - a", u"b"});
  const Text text = folder.write(u"music/c/read.txt", Bytes(2048, 'x'));
  add(u"music/c");
  form1.ostali.click();
  EXPECT_EQ(rowsOf(form1.List4), Texts{text});
  EXPECT_EQ(form1.listTitle.text(), u"O T H E R    F I L E S");
  EXPECT_EQ(form1.countLabel.text(), u" 1  files ");
  EXPECT_EQ(form1.sizeLabel.text(), u" 2 KB");
  form1.List4.select({0}, 0);
  EXPECT_EQ(form1.path.text(), u"") << "a click shows no file that is not music";
  expectAtRest();

  form1.muzickiFajlovi.click();
  EXPECT_EQ(rowsOf(form1.List4), working());
  EXPECT_EQ(form1.countLabel.text(), u" 2  new songs ");
  form1.ostali.click();
  songs({u"d"});
  EXPECT_TRUE(form1.muzickiFajlovi.chosen()) << "Add goes back to the music";
  EXPECT_EQ(rowsOf(form1.List4), working());
  EXPECT_EQ(form1.listTitle.text(), u"M U S I C    F I L E S");
  expectAtRest();
}

TEST_F(ListViewsTest, BeyondTheDisplayLimitOtherFilesAreKeptButNotShown) {
  table.niznomusic.assign(32738, u"/gone.txt");
  dialogs.expect(
      u"To many files. Can display only 32737 files on list. When process these files, make list again to "
      u"display other files.",
      u"Make List", Answer::Ok);
  form1.ostali.setChosen(true);
  EXPECT_EQ(form1.List4.ListCount(), 32736);
  EXPECT_EQ(data.readList(u"niznomusic.txt").size(), 32738u);
}

TEST_F(ListViewsTest, AClickOnAFileShowsItAndCompletesNothing) {
  songs({u"Arvola - a", u"Arvola"});
  table.autori = {u"Arvola", u"Arvola and others"};
  form1.List4.select({1}, 1);
  EXPECT_EQ(table.currentRow, 2);
  EXPECT_EQ(form1.path.text(), table.path(2));
  EXPECT_EQ(form1.Text1.text(), u"Arvola");
  EXPECT_FALSE(form1.List3.visible());
  form1.List4.select({0, 1}, 0);
  EXPECT_EQ(form1.Text8.text() + u"|" + form1.Text5.text(), u"Arvola | a") << "the row that was clicked";
  form1.List4.select({1}, 0);
  EXPECT_EQ(table.currentRow, 2) << "a click that takes the mark off shows a row that has it";
  form1.List4.clearSelection();
  EXPECT_EQ(table.currentRow, 2);
}

TEST_F(ListViewsTest, InAReviewAClickFillsTheNameBoxAlone) {
  songs({u"Arvola - a", u"b"});
  for (const core::Review review : {core::Review::CheckFix, core::Review::Duplicates,
                                    core::Review::WhoIsArtist, core::Review::ArtistExists}) {
    table.vrsta = review;
    form1.Text1.setText({});
    form1.List4.select({0}, 0);
    EXPECT_EQ(form1.Text1.text(), u"Arvola - a");
    EXPECT_EQ(form1.Text8.text(), u"");
  }
}

TEST_F(ListViewsTest, ClicksAreIgnoredWhileListsAreFilledOrACommandRuns) {
  songs({u"a"});
  table.puniliste = 1;
  form1.List4.select({0}, 0);
  table.puniliste = 0;
  form1.setEnabled(false);
  form1.List4.select({0}, 0);
  EXPECT_EQ(table.currentRow, 0);
}

TEST_F(ListViewsTest, AFolderThatHoldsAnAddedOneScrollsToItsFirstFile) {
  songs({u"a", u"b", u"c"});
  const auto click = [this](TextView name) {
    form1.folderTree.setPath(folder.path(name));
    views.folderTreeClick();
    return form1.List4.TopIndex();
  };
  EXPECT_EQ(click(u"music/b"), 1);
  EXPECT_EQ(click(u"music/c/deeper"), 1) << "no added folder lies in it";
  EXPECT_EQ(click(u"music/c"), 2);
  EXPECT_EQ(click(u"music"), 0);
}

TEST_F(ListViewsTest, AClickOnArtistsListsTheirSongs) {
  songs({u"Arvola - a", u"Other - b", u"Arvola - c", u"nameless"});
  table.stariautori = {u"", u"Other"};
  table.vrsta = core::Review::ArtistList;
  for (const Text& artist : table.autori) form1.List1.AddItem(artist);
  ASSERT_EQ(rowsOf(form1.List1), (Texts{u"", u"Arvola ", u"Other "}));
  form1.List1.select({1, 2}, 2);
  EXPECT_EQ(rowsOf(form1.List5), (Texts{u"Arvola ", u"Other "}));
  EXPECT_EQ(rowsOf(form1.List2), (Texts{u" a", u" c", u" b"}));
  EXPECT_EQ(form1.List2.ItemData(0), 1);
  EXPECT_EQ(form1.List2.ItemData(1), 3);
  EXPECT_EQ(form1.List2.ItemData(2), 2);
  EXPECT_EQ(rowsOf(form1.List8), (Texts{u"NEW", u"NEW", u"OLD"}));
  EXPECT_EQ(form1.countLabel.text(), u"Songs: 3");
  form1.List1.clearSelection();
  EXPECT_EQ(form1.List2.ListCount() + form1.List8.ListCount(), 0);
  EXPECT_EQ(form1.sizeLabel.text(), u" 0 KB");
}

}  // namespace
}  // namespace velmora::list
