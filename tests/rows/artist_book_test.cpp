#include "rows/artist_book.h"

#include <random>

#include "tests/support/house_world.h"

namespace velmora::rows {
namespace {

using test::Texts;

struct ArtistBookTest : test::HouseWorld {
  ArtistBook& book = house.artists;

  /// One row for each artist, the first `working` of them in the working list.
  void rows(const Texts& artists, int working) { rows(table, artists, working); }
  static void rows(core::TrackTable& in, const Texts& artists, int working) {
    for (const Text& artist : artists) {
      in.appendPath(u"/m/" + artist + u".mp3");
      in.setParts(in.rows(), artist, u"");
    }
    in.setBrojfajlova(working);
    in.aktivniprozor = core::WindowAtWork::Processing;
  }
  void give(int row, const Text& artist) { give(table, book, row, artist); }
  static void give(core::TrackTable& in, ArtistBook& by, int row, const Text& artist) {
    const Text before = in.track(row).pevac.text();
    in.currentRow = row;
    in.setParts(row, artist, u"");
    by.DodajAutora(artist);
    by.IzbaciAutora(before);
  }
  Texts saved() { return data.readList(u"autori.txt"); }
  void openView() {
    table.vrsta = core::Review::ArtistList;
    for (int row = 1; row <= table.rows(); ++row) book.DodajAutora(table.track(row).pevac.text());
  }
  /// The view as "artist:kind", with "*" behind the kinds that are marked.
  Texts view() const {
    Texts lines;
    EXPECT_EQ(form1.List1.ListCount(), form1.List7.ListCount());
    for (int i = 0; i < form1.List1.ListCount(); ++i)
      lines.push_back(form1.List1.List(i) + u":" + form1.List7.List(i) +
                      (form1.List7.Selected(i) ? u"*" : u""));
    return lines;
  }
};

TEST_F(ArtistBookTest, CollectsDistinctArtistsOfTheWorkingListFirstSeenFirst) {
  rows({u"B ", u"A", u"B ", u"", u"a", u"B", u"", u"Tail"}, 7);
  std::vector<int> heard;
  book.collect([&](int row) { return heard.push_back(row), true; });
  EXPECT_EQ(table.autori, (Texts{u"B ", u"A", u"", u"a", u"B"}));
  EXPECT_EQ(heard, (std::vector<int>{2, 3, 4, 5, 6, 7}));
  book.collect([](int row) { return row < 3; });
  EXPECT_EQ(table.autori, (Texts{u"B ", u"A"}));
}

TEST_F(ArtistBookTest, AnArtistLeavesWithItsLastWorkingRowAndEachChangeIsSaved) {
  rows({u"A", u"A", u"B", u"A"}, 3);
  table.autori = {u"A", u"B"};
  give(1, u"C");
  EXPECT_EQ(saved(), (Texts{u"A", u"B", u"C"}));
  give(2, u"B");
  EXPECT_EQ(saved(), (Texts{u"B", u"C"})) << "a row of the base keeps no artist in the list";
  table.currentRow = 4;
  table.setParts(3, u"C", u"");
  book.IzbaciAutora(u"B");
  EXPECT_EQ(table.autori, (Texts{u"B", u"C"}));
  table.setParts(2, u"C", u"");
  book.IzbaciAutora(u"B");
  EXPECT_EQ(table.autori, (Texts{u"B", u"C"})) << "while the current row lies in the base, nothing leaves";
}

TEST_F(ArtistBookTest, ABatchEndsLikeTheSameChangesOneByOne) {
  std::mt19937 random(7);
  Texts artists;
  for (int i = 0; i < 40; ++i) artists.push_back(u"artist " + Text(1, static_cast<char16_t>(u'a' + i % 12)));
  rows(artists, 30);
  core::TrackTable plainTable;
  ArtistBook plain{plainTable, data, form1};
  rows(plainTable, artists, 30);
  book.collect({});
  plain.collect({});
  {
    const ArtistBook::Batch outer(book);
    for (int step = 0; step < 500; ++step) {
      const ArtistBook::Batch inner(book);
      const int row = static_cast<int>(random() % 40) + 1;
      const Text artist = artists[random() % 40] + (random() % 3 == 0 ? u"" : u" x");
      give(row, artist);
      give(plainTable, plain, row, artist);
    }
  }
  EXPECT_EQ(table.autori, plainTable.autori);
  EXPECT_EQ(saved(), table.autori);
}

TEST_F(ArtistBookTest, TheViewShowsWhereAnArtistHasRows) {
  rows({u"new", u"both", u"both", u"old"}, 2);
  openView();
  EXPECT_EQ(view(), (Texts{u"both:N&O*", u"new:NEW*", u"old:OLD"}));
  EXPECT_EQ(table.autori, (Texts{u"new", u"both"})) << "an artist of the base alone is no artist of the list";

  give(2, u"old");
  EXPECT_EQ(view(), (Texts{u"both:OLD", u"new:NEW*", u"old:N&O*"}));
  give(1, u"Old");
  EXPECT_EQ(view(), (Texts{u"both:OLD", u"old:N&O*", u"Old:NEW*"})) << "two spellings are two artists";
  give(4, u"third");
  EXPECT_EQ(view(), (Texts{u"both:OLD", u"old:NEW*", u"Old:NEW*", u"third:OLD"}));
}

TEST_F(ArtistBookTest, OtherWindowsHearOfArtistsWhileTheyAreInFront) {
  rows({u"A", u"B"}, 2);
  table.vrsta = core::Review::ArtistList;
  table.aktivniprozor = core::WindowAtWork::MusicBase;
  table.autori = {u"A", u"B"};
  Texts heard;
  book.onAdded = [&](const Text& artist) { heard.push_back(u"+" + artist); };
  book.onRemoved = [&](const Text& artist) { heard.push_back(u"-" + artist); };
  give(1, u"C");
  EXPECT_EQ(heard, (Texts{u"+C", u"-A"}));
  EXPECT_EQ(form1.List1.ListCount(), 0) << "the view is not in front";
}

TEST_F(ArtistBookTest, TheArtistFolderIsTheSecondOneBelowTheBase) {
  table.dirzabazu = u"/base";
  const std::pair<TextView, TextView> cases[] = {{u"/base/Rock/Arvola/1999/x.mp3", u"Arvola"},
                                                 {u"/base/Rock/Arvola/x.mp3", u"Arvola"},
                                                 {u"/base/Rock/x.mp3", u" "},
                                                 {u"/base/x.mp3", u" "},
                                                 {u"/elsewhere/Rock/Arvola/x.mp3", u" "}};
  for (const auto& [path, artistFolder] : cases) {
    table.appendPath(Text(path));
    EXPECT_EQ(book.FolderAutor(table.rows()), artistFolder);
  }
  EXPECT_EQ(book.FolderAutor(99), u" ");
  table.dirzabazu = u"/base/";
  EXPECT_EQ(book.FolderAutor(1), u"Arvola");
  table.dirzabazu = u"";
  EXPECT_EQ(book.FolderAutor(1), u" ");
}

}  // namespace
}  // namespace velmora::rows
