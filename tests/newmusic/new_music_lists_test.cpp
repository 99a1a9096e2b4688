#include <algorithm>
#include <functional>
#include <random>

#include "core/natural_order.h"
#include "newmusic/tag_values.h"
#include "tests/newmusic/new_music_world.h"
#include "tests/support/mp3_maker.h"

namespace velmora {
namespace {

using newmusic::NewMusicRows;
using test::Names;
using test::Texts;

/// What the lists of the New Music Window must hold, told by plain walks over all rows.
struct NaiveLists {
  const core::TrackTable& table;
  const ui::Form2& form2;

  Texts genres() const {
    Texts list = {Text(newmusic::everyAutor), Text(newmusic::withoutGenree)};
    for (int i = 1; i <= table.brojfajlova(); ++i)
      if (!genre(i).empty()) add(list, genre(i));
    return list;
  }
  Texts artists() const {
    Texts list;
    if (form2.List1.Selected(1))
      for (const Text& artist : table.autori)
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (pevac(i) == artist && genre(i).empty()) add(list, artist);
    for (const int g : form2.List1.selectedIndexes())
      for (int i = 1; g > 1 && i <= table.brojfajlova(); ++i)
        if (genre(i) == form2.List1.List(g)) add(list, pevac(i));
    if (form2.List1.Selected(0)) list.insert(list.end(), table.autori.begin(), table.autori.end());
    std::ranges::sort(list, [](const Text& left, const Text& right) {
      return left.empty() != right.empty() ? right.empty() : core::naturalLess(left, right);
    });
    return list;
  }
  Texts albums() const {
    Texts list = {Text(newmusic::everySongs), Text(newmusic::withoutAlbumAndYear)};
    for (const int a : form2.List2.selectedIndexes())
      for (const int g : form2.List1.selectedIndexes())
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (matches(i, g, a) && !album(i).empty()) add(list, album(i));
    return list;
  }
  Texts folders() const {
    Texts list = {Text(newmusic::everySongs)};
    for (const int i : songs([](int) { return true; })) add(list, folder(i));
    return list;
  }
  std::vector<int> songsOfAlbums() const {
    const ui::ListBox& albums = form2.List3;
    return songs(
        [&](int i) { return (albums.Selected(1) && album(i).empty()) || chosen(albums, 2, album(i)); });
  }
  std::vector<int> songsOfFolders() const {
    return songs([&](int i) { return chosen(form2.List8, 1, folder(i)); });
  }

 private:
  static void add(Texts& list, const Text& text) {
    if (std::ranges::find(list, text) == list.end()) list.push_back(text);
  }
  Text genre(int row) const { return Text(newmusic::TagGenre(table, row)); }
  Text album(int row) const { return newmusic::TagAlbumYear(table, row); }
  const Text& pevac(int row) const { return table.track(row).pevac.text(); }
  Text folder(int row) const {
    Text path = table.path(row);
    path.resize(path.rfind(u'/'));
    return u"...\\" + Text(core::paths::fileName(path)) + u"\\";
  }
  bool matches(int row, int g, int a) const {
    const bool fits = g == 0 || (g == 1 ? genre(row).empty() : genre(row) == form2.List1.List(g));
    return fits && pevac(row) == form2.List2.List(a);
  }
  /// Whether the row for all, or that of `text` from row `from` on, is selected.
  static bool chosen(const ui::ListBox& list, int from, const Text& text) {
    return std::ranges::any_of(list.selectedIndexes(),
                               [&](int k) { return k == 0 || (k >= from && list.List(k) == text); });
  }
  std::vector<int> songs(const std::function<bool(int)>& taken) const {
    std::vector<int> list;
    for (const int g : form2.List1.selectedIndexes())
      for (const int a : form2.List2.selectedIndexes())
        for (int i = 1; i <= table.brojfajlova(); ++i)
          if (matches(i, g, a) && taken(i)) list.push_back(i);
    return list;
  }
};

struct NewMusicListsTest : test::NewMusicWorld {};

TEST(TagValues, TheSecondTagWinsAndBlanksCountAsNothing) {
  core::TrackTable table;
  table.appendPath(u"/m/a.mp3");
  table.resizeColumns();
  core::Track& track = table.track(1);
  track.vrstaid3v1 = u"Rock";
  track.albumid3v1 = u" First ";
  track.godinaid3v1 = u"1998";
  EXPECT_EQ(newmusic::TagGenre(table, 1), u"") << "values of a tag that the file does not have";
  track.imaid3v1 = true;
  EXPECT_EQ(newmusic::TagGenre(table, 1), u"Rock");
  EXPECT_EQ(newmusic::TagAlbumYear(table, 1), u"First  1998");
  track.imaid3v2 = true;
  EXPECT_EQ(newmusic::TagGenre(table, 1), u"") << "a tag without the value wins all the same";
  track.vrstaid3v2 = u"Pop";
  track.albumid3v2 = u"  ";
  track.godinaid3v2 = u"2001";
  EXPECT_EQ(newmusic::TagGenre(table, 1), u"Pop");
  EXPECT_EQ(newmusic::TagAlbum(table, 1), u"");
  EXPECT_EQ(newmusic::TagAlbumYear(table, 1), u"2001");
}

TEST_F(NewMusicListsTest, TheFirstListingComesBehindAProgressWindow) {
  song(u"A - 1", {u"Rock"});
  table.aktivniprozor = core::WindowAtWork::MusicBase;
  Text said;
  desktop.then([&] {
    said = windows.dialog1.text.text();
    EXPECT_FALSE(form3.enabled());
  });
  music.IzlistajVrste();
  EXPECT_EQ(said, u"Preparing List ...");
  EXPECT_TRUE(form3.enabled());
  EXPECT_FALSE(windows.dialog1.visible());
  EXPECT_EQ(form2.newLabel.text(), u"New: 1");
}

/// Everything that can be chosen in random tables lists what a walk over all rows lists, in its order.
TEST_F(NewMusicListsTest, ListsAreThoseOfThePlainWalk) {
  std::mt19937 random(20);
  const auto pick = [&random](std::initializer_list<const char16_t*> texts) {
    return Text(texts.begin()[random() % texts.size()]);
  };
  for (int round = 0; round < 40; ++round) {
    table.truncate(0);
    table.resizeColumns();
    table.setBrojfajlova(0);
    table.autori.clear();
    form1.List4.Clear();
    const auto rows = random() % 60;
    for (std::uint32_t i = 0; i < rows; ++i) {
      const Text artist = pick({u"A - ", u"B - ", u"b - ", u"C  - ", u"", u"D- "});
      addRow(u"/new/" + pick({u"x", u"y", u"z/x"}) + u"/" + artist + core::plain(std::int64_t{i}) + u".mp3",
             {pick({u"Rock", u"Pop", u"", u"  ", u"Jazz"}),
              pick({u"One", u"Two", u"", u" One ", u"-<< Every Songs >>-"}), pick({u"1998", u"2001", u""})});
    }
    table.appendPath(u"/base/Genre/Artist/E - tail.mp3");
    table.resizeColumns();
    std::ranges::shuffle(table.autori, random);
    const NaiveLists naive{table, form2};
    music.IzlistajVrste();
    ASSERT_EQ(rows > 0 ? naive.genres() : Texts(), rowsOf(form2.List1));

    const auto choose = [&random](ui::ListBox& list) {
      std::vector<int> chosen;
      for (int index = 0; index < list.ListCount(); ++index)
        if (random() % 3 == 0) chosen.push_back(index);
      list.select(chosen, chosen.empty() ? -1 : chosen.back());
    };
    const auto titles = [this] {
      std::vector<int> shown;
      for (int i = 0; i < form2.List4.ListCount(); ++i) shown.push_back(form2.List4.ItemData(i));
      return shown;
    };
    const ui::QuietLists quietly(table);
    choose(form2.List1);
    ASSERT_EQ(naive.artists(), rowsOf(form2.List2));
    choose(form2.List2);
    ASSERT_EQ(naive.albums(), rowsOf(form2.List3));
    choose(form2.List3);
    ASSERT_EQ(naive.songsOfAlbums(), titles());
    form2.albumByFolder.setChosen(true);
    ASSERT_EQ(naive.folders(), rowsOf(form2.List8));
    choose(form2.List8);
    ASSERT_EQ(naive.songsOfFolders(), titles());
    form2.albumByTag.setChosen(true);
  }
}

TEST_F(NewMusicListsTest, AClickFillsTheBoxesAndChoosesTheFirstArtist) {
  song(u"Beta - one", {u"Rock", u"First", u"1998"});
  song(u"nodash", {u"Rock"});
  song(u"Alpha - two", {u"Pop", {}, u"2001"});
  openBoth();
  EXPECT_EQ(rows(form2.List1), (Names{"-<< Every Autor >>-", "-<< Without Genree >>-", "Rock", "Pop"}));
  click(form2.List1, {u"Rock"});
  EXPECT_EQ(form2.Combo1.text(), u"Rock");
  EXPECT_EQ(rows(form2.List2), (Names{"Beta ", ""}));
  EXPECT_EQ(chosen(form2.List2), Names{"Beta "});
  EXPECT_EQ(rows(form2.List3),
            (Names{"-<< Every Songs >>-", "-<< Without Album And Year >>-", "First  1998"}));
  click(form2.List3, {u"First  1998"});
  EXPECT_EQ(form2.Text3.text(), u"First");
  EXPECT_EQ(form2.Text5.text(), u"1998");
  click(form2.List2, {u""});
  click(form2.List3, {u"-<< Without Album And Year >>-"});
  EXPECT_EQ(rows(form2.List4), Names{"nodash"});
  EXPECT_EQ(form2.Text3.text(), u"");

  form2.List1.select({0, 3}, 0);
  EXPECT_EQ(chosen(form2.List1), Names{"Pop"}) << "what stands for all gives way to a genre";
  EXPECT_EQ(rows(form2.List2), Names{"Alpha "});
  EXPECT_EQ(rows(form2.List3), (Names{"-<< Every Songs >>-", "-<< Without Album And Year >>-", "2001"}));
  form2.List3.select({0, 2}, 0);
  EXPECT_EQ(chosen(form2.List3), Names{"2001"});
}

TEST_F(NewMusicListsTest, TheSameSongIsMarkedInAllWindows) {
  show({u"Rock/Alpha/First  1998/Alpha - song.mp3", u"Pop/Zeta/Zeta - other.mp3"});
  song(u"Zeta - x", {u"Pop"});
  const Text path = song(u"ALPHA  -  Song ", {u"Pop", u"First", u"1998"});
  openBoth();
  click(form2.List1, {u"Pop"});
  click(form2.List2, {u"Zeta "});
  EXPECT_EQ(chosen(form3.List1), Names{"Pop"}) << "the base follows to where the artist lives";
  EXPECT_EQ(chosen(form3.List2), Names{"Zeta"});
  click(form2.List2, {u"ALPHA  "});
  EXPECT_EQ(chosen(form3.List1), Names{"Rock"}) << "whatever the capitals";
  EXPECT_EQ(chosen(form3.List2), Names{"Alpha"});
  ASSERT_EQ(rows(form3.List8), Names{"song"});
  click(form2.List3, {u"First  1998"});
  form2.List4.select({0}, 0);
  EXPECT_EQ(form2.Text4.text(), u"  Song ");
  EXPECT_EQ(form2.Text2.text(), u"ALPHA  ");
  EXPECT_EQ(form2.Combo1.text(), u"Pop");
  EXPECT_EQ(form2.statusLabel.text(), path);
  EXPECT_EQ(chosen(form1.List4), Names{core::toBytes(path)});
  EXPECT_EQ(chosen(form3.List8), Names{"song"});
  EXPECT_EQ(table.puniliste, 0);

  song(u"Nobody - y", {u"Jazz"});
  openBoth();
  click(form3.List1, {u"Rock"});
  click(form2.List1, {u"Jazz"});
  EXPECT_EQ(chosen(form3.List1), Names{"Rock"}) << "an artist whom no genre holds leaves the base as it was";
  EXPECT_EQ(chosen(form3.List2), Names{"Alpha"});
}

TEST_F(NewMusicListsTest, FoldersCanStandForGenresAndAlbums) {
  song(u"Rock/one/A - 1", {u"Pop"});
  song(u"Rocking/two/B - 2");
  song(u"Jazz/one/C - 3");
  song(u"Rock/two/A - 4");
  openBoth();
  form2.genreByFolder.click();
  EXPECT_FALSE(form2.List1.visible());
  EXPECT_TRUE(form2.Dir1.visible());
  EXPECT_EQ(form2.Dir1.path(), folder.path(u"new"));
  EXPECT_EQ(rows(form2.List2).size(), 3U);
  form2.Dir1.click(folder.path(u"new/Rock"));
  EXPECT_EQ(rows(form2.List2), (Names{"A ", "B "})) << "the path is looked for as a plain text";
  EXPECT_EQ(form2.Combo1.text(), u"Rock");
  form2.albumByFolder.click();
  EXPECT_EQ(rows(form2.List8), (Names{"-<< Every Songs >>-", "...\\one\\", "...\\two\\"}));
  EXPECT_EQ(chosen(form2.List8), Names{"-<< Every Songs >>-"});
  EXPECT_EQ(form2.List4.ListCount(), 2);
  click(form2.List8, {u"...\\two\\"});
  EXPECT_EQ(rows(form2.List4), Names{" 4"});
  EXPECT_EQ(form2.Text3.text(), u"two");
  form2.Dir1.click(folder.path(u"new"));
  EXPECT_EQ(rows(form2.List2).size(), 3U);
  form2.albumByTag.click();
  EXPECT_TRUE(form2.List3.visible());
  EXPECT_EQ(chosen(form2.List3), Names{"-<< Every Songs >>-"});
  form2.genreByTag.click();
  EXPECT_EQ(chosen(form2.List1), Names{"-<< Every Autor >>-"});
}

TEST_F(NewMusicListsTest, AScanReadsAllTagsUntilStop) {
  const auto tagged = [this](TextView name, const Text& genre) {
    folder.write(u"new/" + Text(name) + u".mp3",
                 test::Id3v2Maker()
                         .values({.title = Text(name), .artist = u"x", .genre = genre})
                         .padding(300)
                         .bytes() +
                     test::mpegFrames());
    const int row = addRow(folder.path(u"new/" + Text(name) + u".mp3"), {});
    table.track(row).procitan = false;
    table.track(row).imaid3v2 = false;
  };
  for (const char16_t* name : {u"a", u"b", u"c"}) tagged(name, u"Genre of " + Text(name));
  openBoth();
  EXPECT_EQ(form2.List1.ListCount(), 2);
  std::vector<Text> said;
  desktop.then([&] { said.push_back(windows.dialog1.text.text()); });
  desktop.then([&] { said.push_back(form2.statusLabel.text()); });
  desktop.then([&] { said.push_back(form2.statusLabel.text()); });
  desktop.then([&] {
    EXPECT_FALSE(form2.enabled());
    table.Stop = true;
  });
  room.tagScan.scan();
  EXPECT_EQ(said, (std::vector<Text>{u"Sorting ...", u"", u"2 files left."}));
  EXPECT_EQ(rows(form2.List1),
            (Names{"-<< Every Autor >>-", "-<< Without Genree >>-", "Genre of a", "Genre of b"}));
  room.tagScan.scan();
  EXPECT_EQ(rows(form2.List1).back(), "Genre of c");
  EXPECT_EQ(data.readColumn(u"vrstaid3v2.txt").size(), 3U);
  EXPECT_TRUE(form2.enabled() && form3.enabled() && form1.enabled());
  EXPECT_FALSE(windows.dialog1.visible());
}

TEST_F(NewMusicListsTest, TheWindowOpensAsItWasClosed) {
  song(u"one/A - 1", {u"Rock", u"First", u"1998"});
  song(u"two/A - 2", {u"Pop", u"First", u"1998"});
  song(u"two/B - 3", {u"Rock"});
  openBoth();
  click(form2.List1, {u"Rock", u"Pop"});
  click(form2.List2, {u"A "});
  click(form2.List3, {u"First  1998"});
  form2.List4.select({1}, 1);
  form2.List4.setTopIndex(1);
  room.state.store();
  EXPECT_EQ(settings.get(u"stanje2"), u"1:1: 2, 3: 0: 2: 1: 0: 0: 0: 1:");
  openBoth();
  room.state.restore(settings.get(u"stanje2"));
  EXPECT_EQ(chosen(form2.List1), (Names{"Rock", "Pop"}));
  EXPECT_EQ(chosen(form2.List2), Names{"A "});
  EXPECT_EQ(chosen(form2.List3), Names{"First  1998"});
  EXPECT_EQ(chosen(form2.List4), Names{" 2"});
  EXPECT_EQ(form2.List4.TopIndex(), 1);

  form2.genreByFolder.click();
  form2.albumByFolder.click();
  form2.Dir1.click(folder.path(u"new/two"));
  click(form2.List2, {u"B "});
  click(form2.List8, {u"...\\two\\"});
  room.state.store();
  EXPECT_EQ(settings.get(u"stanje2"), u"0:-2: 0: 1: 1:: 0: 0: 0: 0:");
  EXPECT_EQ(settings.get(u"form2dis"), folder.path(u"new/two"));
  form2.albumByTag.click();
  form2.genreByTag.click();
  openBoth();
  room.state.restore(settings.get(u"stanje2"));
  EXPECT_TRUE(form2.genreByFolder.chosen());
  EXPECT_EQ(form2.Dir1.path(), folder.path(u"new/two"));
  EXPECT_EQ(rows(form2.List2), (Names{"A ", "B "}));
  EXPECT_EQ(chosen(form2.List2), Names{"B "});
  EXPECT_EQ(chosen(form2.List8), Names{"...\\two\\"});
  EXPECT_EQ(rows(form2.List4), Names{" 3"});
  room.state.restore(u" 9, 9:junk:::99999: 7:");
  EXPECT_EQ(table.puniliste, 0);
}

TEST_F(NewMusicListsTest, TooLittleRoomIsRed) {
  const double need = static_cast<double>(disk.size(song(u"A - 1")) + disk.size(song(u"B - 2")));
  summary.moze();
  EXPECT_EQ(form2.newLabel.text(), u"New: 2");
  EXPECT_EQ(form2.needLabel.text(), u"Need:  0 KB") << "a file on the same volume needs no room";
  EXPECT_EQ(form2.freeLabel.colour(), (ui::Colour{0x40, 0x40, 0x40}));
  files.pretendVolume(lists.root());
  summary.forget();
  EXPECT_EQ(summary.NeedBytes(), need);
  files.failFrom(1);
  summary.moze();
  files.failNoMore();
  EXPECT_EQ(form2.freeLabel.colour(), (ui::Colour{255, 50, 0}));
  EXPECT_EQ(form2.freeLabel.text(), u"Free(" + lists.root() + u":)  0 KB");
}

}  // namespace
}  // namespace velmora
