#include "list/artist_completion.h"

#include "tests/list/list_world.h"

namespace velmora::list {
namespace {

using test::Texts;
using ui::Key;

struct ArtistCompletionTest : test::ListWorld {
  ArtistCompletionTest() {
    for (const TextView name : {u"one", u"two", u"three"}) {
      table.appendPath(u"/music/" + Text(name) + u".mp3");
      table.setParts(table.rows(), u"", u" " + Text(name) + u" ");
      form1.List4.AddItem(table.path(table.rows()));
    }
    table.setBrojfajlova(3);
    table.autori = {u"Arvola ", u"", u"arv", u"Other "};
    table.currentRow = 2;
  }
  Texts offered(TextView typed) {
    form1.Text1.type(Text(typed), static_cast<int>(typed.size()));
    return form1.List3.visible() ? rowsOf(form1.List3) : Texts();
  }
};

TEST_F(ArtistCompletionTest, OffersArtistsThatBeginWithWhatStandsBeforeTheCursor) {
  EXPECT_EQ(offered(u"aR"), (Texts{u"Arvola ", u"arv"}));
  EXPECT_FALSE(form1.List5.visible());
  EXPECT_EQ(offered(u" arvo "), Texts{u"Arvola "});
  EXPECT_EQ(offered(u"arvo x"), Texts());
  EXPECT_EQ(offered(u" "), Texts());
  form1.Text1.type(u"arvola - song", 3);
  EXPECT_EQ(rowsOf(form1.List3), (Texts{u"Arvola ", u"arv"}));
  EXPECT_EQ(table.puniliste, 0);
}

TEST_F(ArtistCompletionTest, ArtistsOfTheBaseFollowOnceThereAreAny) {
  table.stariautori = {u"Arvola"};
  EXPECT_EQ(offered(u"arvo"), Texts{u"Arvola "}) << "one row is no artist yet";
  table.stariautori = {u"", u"Arvo P"};
  EXPECT_EQ(offered(u"arv"), (Texts{u"Arvola ", u"arv", u"Arvo P"}));
}

TEST_F(ArtistCompletionTest, NothingIsOfferedWithoutAListInTheArtistCheckOrDuringACommand) {
  table.vrsta = core::Review::WhoIsArtist;
  EXPECT_EQ(offered(u"ar"), Texts());
  table.vrsta = core::Review::None;
  table.puniliste = 1;
  EXPECT_EQ(offered(u"arv"), Texts());
  table.puniliste = 0;
  form1.setEnabled(false);
  EXPECT_EQ(offered(u"ar"), Texts());
  form1.setEnabled(true);
  form1.List4.Clear();
  EXPECT_EQ(offered(u"arv"), Texts());
}

TEST_F(ArtistCompletionTest, TheArtistThatIsChosenComesBeforeTheTitle) {
  ASSERT_EQ(offered(u"ar").size(), 2u);
  EXPECT_FALSE(completion.nameBoxKey({Key::Down}));
  EXPECT_TRUE(completion.nameBoxKey({Key::Up}));
  EXPECT_EQ(form1.Text1.text(), u"Arvola - two");
  EXPECT_FALSE(form1.List3.visible());

  table.vrsta = core::Review::ArtistList;
  form1.Text8.type(u"oth", 3);
  completion.boxChanged();
  ASSERT_EQ(rowsOf(form1.List3), Texts{u"Other "});
  form1.List3.setSelected(0, true);
  EXPECT_EQ(form1.Text8.text(), u"Other");
}

TEST_F(ArtistCompletionTest, UpAndDownPlayTheNeighbourWithinTheList) {
  form1.List3.setVisible(false);
  std::vector<int> played;
  form1.List4.onDoubleClick = [&] { played.push_back(form1.List4.ListIndex()); };
  EXPECT_FALSE(completion.nameBoxKey({Key::Up}));
  for (int press = 0; press < 4; ++press) completion.nameBoxKey({Key::Down});
  EXPECT_TRUE(completion.nameBoxKey({Key::Up}));
  EXPECT_EQ(played, (std::vector<int>{0, 1, 2, 1}));
  EXPECT_EQ(form1.List4.selectedIndexes(), std::vector<int>{1});
  EXPECT_EQ(table.currentRow, 2);
  EXPECT_FALSE(completion.nameBoxKey({Key::F12}));
}

}  // namespace
}  // namespace velmora::list
