#include "base/base_lists.h"

#include <algorithm>
#include <random>

#include "core/number_text.h"
#include "tests/base/base_world.h"
#include "ui/quiet_lists.h"

namespace velmora {
namespace {

using base::withoutFolder;
using test::Names;

const std::string without = core::toBytes(withoutFolder);

struct BaseListsTest : test::BaseWorld {};

TEST_F(BaseListsTest, EachColumnShowsOneDepthOfTheTree) {
  show({u"rock/Beta/Second 2003/Beta - two.mp3", u"rock/Beta/First 2001/Beta - one.mp3", u"rock/Beta/own.mp3",
        u"Pop/Alpha/Misc/deep/deeper.mp3", u"rock/no artist.mp3", u"no genre.mp3"});
  EXPECT_EQ(rows(form3.List1), (Names{"Pop", "rock"}));
  click(form3.List1, {u"rock"});
  EXPECT_EQ(form3.Combo1.text(), u"rock");
  EXPECT_EQ(rows(form3.List2), Names{"Beta"});
  EXPECT_EQ(chosen(form3.List2), Names{"Beta"}) << "nothing is remembered: the first artist";
  EXPECT_EQ(rows(form3.List3), (Names{without, "First 2001", "Second 2003"}));
  EXPECT_EQ(chosen(form3.List3).size(), 3U) << "nothing is remembered: all albums";
  EXPECT_EQ(rows(form3.List4), (Names{"own.mp3", "Beta - one.mp3", "Beta - two.mp3"}));
  EXPECT_EQ(rows(form3.List8), (Names{"wn", "one", "two"}));
  EXPECT_EQ(rows(form3.List7), (Names{"", "First 2001", "Second 2003"}));
  click(form3.List8, {u"two"});
  EXPECT_EQ(form3.Text4.text(), u"two");
  EXPECT_EQ(lists.filePath(form3.List8.ItemData(2)), at(u"rock/Beta/Second 2003/Beta - two.mp3"));
  EXPECT_EQ(lists.filePath(0), at(u"rock/Beta/own.mp3"));
  EXPECT_EQ(lists.albumPath(0), at(u"rock/Beta/"));
  EXPECT_EQ(lists.filePath(7), u"") << "no row, no path";
  click(form3.List1, {u"Pop"});
  EXPECT_EQ(rows(form3.List3), Names{"Misc"}) << "no files of its own";
  EXPECT_EQ(rows(form3.List8), Names{});
}

TEST_F(BaseListsTest, WithoutARootThereIsNothing) {
  settings.set(u"DirZaBazu", u"");
  show({u"Rock/A/1.mp3"});
  lists.readRoot();
  lists.IzlistajBazu();
  EXPECT_EQ(rows(form3.List1), Names{});
  settings.set(u"DirZaBazu", folder.path(u"gone"));
  lists.readRoot();
  EXPECT_EQ(lists.root(), folder.path(u"gone/"));
  lists.IzlistajBazu();
  EXPECT_EQ(rows(form3.List1), Names{});
}

TEST(FolderYear, IsWhatTheLastFourCharactersBeginWith) {
  struct {
    TextView name;
    int year;
  } cases[] = {
      {u"Best Of - 1999", 1999}, {u"Live 99", 0}, {u"Album (1999)", 999},   {u"199", 0}, {u"1999", 1999},
      {u"2000 Greatest", 0},     {u"", 0},        {u"a/b/Album 2001", 2001}};
  for (const auto& c : cases) EXPECT_EQ(base::FolderYear(c.name), c.year) << core::toBytes(c.name);
}

TEST(AppendPath, EndsInOneSeparatorOrDropsOut) {
  EXPECT_EQ(base::AppendPath(u"Rock"), u"Rock/");
  EXPECT_EQ(base::AppendPath(u" Rock/  "), u" Rock/");
  EXPECT_EQ(base::AppendPath(withoutFolder), u"");
  EXPECT_EQ(base::AppendPath(u"  "), u"");
}

TEST(FolderName, HoldsNothingThatLeadsElsewhere) {
  EXPECT_EQ(base::folderName(u"  AC/DC: \"Live\"? \n"), u"AC DC   Live");
  EXPECT_EQ(base::folderName(u" .. "), u"");
  EXPECT_EQ(base::folderName(u"..."), u"...");
}

TEST(TitleText, LosesTheArtistPart) {
  const std::vector<Text> artists = {u"Jay-Z", u"Jay"};
  struct {
    bool withArtist;
    TextView file, title;
  } cases[] = {{true, u"Jay-Z - One.mp3", u"Jay-Z - One"},
               {false, u"Jay-Z - One.mp3", u"Z - One"},  // the later artist occurs, too
               {false, u"feat. Jay-Z - One.mp3", u"Z - One"},
               {false, u"jay - one.mp3", u"ay - one"},
               {false, u"No dash Jay.mp3", u"No dash Jay"},
               {false, u"abc", u""},
               {false, u"", u""}};
  for (const auto& c : cases)
    EXPECT_EQ(base::TitleText(c.withArtist, artists).of(c.file), c.title) << core::toBytes(c.file);
  EXPECT_EQ(base::TitleText(false, {u"Jay", u"Jay-Z"}).of(u"Jay-Z - One.mp3"), u"One");
}

/// Neither a command that refills the lists, nor another window, chooses albums and titles for the user.
TEST_F(BaseListsTest, CommandsGetNoTitles) {
  show({u"R/A/Al 2001/A - one.mp3", u"R/A/own.mp3"});
  {
    const ui::QuietLists quiet(table);
    click(form3.List1, {u"R"});
    EXPECT_EQ(chosen(form3.List2), Names{});
    click(form3.List2, {u"A"});
    EXPECT_EQ(rows(form3.List3), (Names{without, "Al 2001"}));
    EXPECT_EQ(chosen(form3.List3), Names{});
    click(form3.List3, {u"Al 2001"});
    EXPECT_EQ(rows(form3.List8), Names{}) << "and no rows that belong to nothing";
  }
  folder.removeAll(u"base/R/A/own.mp3");
  for (const auto window : {core::WindowAtWork::NewMusic, core::WindowAtWork::MusicBase}) {
    table.aktivniprozor = window;
    lists.driven = window == core::WindowAtWork::MusicBase;
    click(form3.List1, {u"R"});
    EXPECT_EQ(rows(form3.List3), (Names{without, "Al 2001"}));
  }
  EXPECT_FALSE(folder.exists(u"LastPosition.dat"));
}

TEST_F(BaseListsTest, PositionsComeBack) {
  show({u"R/A/One 2001/A - x.mp3", u"R/A/Two 2002/A - y.mp3", u"R/A/Two 2002/A - z.mp3", u"R/B/b.mp3",
        u"S/C/c.mp3"});
  click(form3.List1, {u"R"});
  click(form3.List2, {u"B"});
  click(form3.List2, {u"A"});
  click(form3.List3, {u"Two 2002"});
  form3.List3.onMouseUp();
  click(form3.List8, {u"z"});
  form3.List8.doubleClick();
  EXPECT_EQ(media.opened, std::vector<Text>{at(u"R/A/Two 2002/A - z.mp3")});
  EXPECT_EQ(folder.read(u"LastPosition.dat"), "\"R\\A\"\r\n\"Aalbum=\\Two 2002\"\r\n\"A\\z\"\r\n");

  click(form3.List1, {u"S"});
  click(form3.List1, {u"R"});
  EXPECT_EQ(chosen(form3.List2), Names{"A"});
  EXPECT_EQ(chosen(form3.List3), Names{"Two 2002"});
  EXPECT_EQ(form3.List8.List(form3.List8.ListIndex()), u"z");
  EXPECT_EQ(form3.List8.SelCount(), 0) << "marked, but nothing acts on it";
  EXPECT_EQ(form3.Text4.text(), u"z");
  EXPECT_EQ(media.opened.size(), 1U);

  click(form3.List3, {u"One 2001", u"Two 2002"});
  form3.List3.onMouseUp();
  EXPECT_EQ(positions.LoadPos(u"Aalbum="), u"") << "all of them";
}

TEST_F(BaseListsTest, PlayWithOneClickPlaysWhatIsClicked) {
  show({u"R/A/One 2001/A - x.mp3", u"R/A/One 2001/A - y.mp3", u"R/A/own.mp3"});
  form3.plfr.setChecked(true);
  click(form3.List1, {u"R"});
  EXPECT_EQ(media.opened, std::vector<Text>{at(u"R/A/own.mp3")}) << "the first of the list, once";
  click(form3.List8, {u"y"});
  EXPECT_EQ(media.opened.back(), at(u"R/A/One 2001/A - y.mp3"));
  EXPECT_FALSE(folder.read(u"LastPosition.dat").find("y") != Bytes::npos) << "a click is no double click";
  lists.selectTitle(1);
  EXPECT_EQ(media.opened.size(), 2U);
}

TEST_F(BaseListsTest, AClickOnADeselectedAlbumKeepsTheTitles) {
  show({u"R/A/One 2001/A - x.mp3", u"R/A/Two 2002/A - y.mp3"});
  click(form3.List1, {u"R"});
  form3.List3.select({1}, 0);
  EXPECT_EQ(rows(form3.List8), (Names{"x", "y"}));
  lists.listTitles();
  EXPECT_EQ(rows(form3.List8), Names{"y"});
}

TEST_F(BaseListsTest, ClicksCanBeWrappedAndSwitchedOff) {
  show({u"A/a/", u"B/b/", u"C/c/"});
  click(form3.List1, {u"C"});
  EXPECT_TRUE(lists.listKey(form3.List1, {ui::Key::Down}));
  EXPECT_EQ(chosen(form3.List1), Names{"A"});
  EXPECT_EQ(rows(form3.List2), Names{"a"});
  EXPECT_FALSE(lists.listKey(form3.List1, {ui::Key::Down})) << "within the list the key goes its way";
  EXPECT_TRUE(lists.listKey(form3.List1, {ui::Key::Up}));
  EXPECT_EQ(chosen(form3.List1), Names{"C"});
  EXPECT_EQ(rows(form3.List2), Names{"c"});
  lists.idle = true;
  click(form3.List1, {u"B"});
  EXPECT_EQ(rows(form3.List2), Names{"c"});
}

TEST_F(BaseListsTest, DraggedRowsAreFullPaths) {
  show({u"R/A/One 2001/A - x.mp3", u"R/A/own.mp3", u"S/B/b.mp3"});
  using Paths = std::vector<Text>;
  click(form3.List1, {u"R"});
  EXPECT_EQ(lists.draggedFiles(form3.List1), Paths{at(u"R")});
  EXPECT_EQ(lists.draggedFiles(form3.List2), Paths{at(u"R/A")});
  EXPECT_EQ(lists.draggedFiles(form3.List3), (Paths{at(u"R/A/own.mp3"), at(u"R/A/One 2001")}))
      << "files without a folder go one by one, not with the artist's albums";
  click(form3.List8, {u"x"});
  EXPECT_EQ(lists.draggedFiles(form3.List8), Paths{at(u"R/A/One 2001/A - x.mp3")});
}

using Items = std::vector<std::pair<Text, int>>;

Items items(const ui::ListBox& list) {
  Items rows;
  for (int i = 0; i < list.ListCount(); ++i) rows.emplace_back(list.List(i), list.ItemData(i));
  return rows;
}

/// Rows of one year have no defined order.
Items byYear(Items rows) {
  std::ranges::sort(rows, {}, [](const auto& row) { return std::tuple(base::FolderYear(row.first), row); });
  return rows;
}

/// The rules as they are told, one row at a time, with no index and no short cut.
struct PlainLists {
  test::BaseWorld& world;
  const ui::ListBox& years = world.form3.years.List9;
  ui::ListBox artists{ui::ListBox::Selection::Multi, true};

  bool shows(const Text& name) const {
    return std::ranges::any_of(years.selectedIndexes(), [&](int row) {
      return row == 0 || core::plain(std::int64_t{base::FolderYear(name)}) == years.List(row);
    });
  }
  auto entries(const Text& folder) const { return world.disk.list(world.at(folder)).entries; }

  void listArtists() {
    for (const int genre : world.form3.List1.selectedIndexes()) {
      const Text folder = world.form3.List1.List(genre);
      for (const auto& artist : entries(folder)) {
        const auto albumsOfYear = [&](const auto& album) {
          return album.kind == platform::EntryKind::Folder && shows(album.name);
        };
        if (!years.Selected(0) && std::ranges::none_of(entries(folder + u'/' + artist.name), albumsOfYear))
          continue;
        artists.AddItem(artist.name);
        artists.setItemData(test::BaseWorld::find(artists, artist.name), genre);
      }
    }
  }
  Items albums(const std::vector<int>& selected, int clicked) const {
    Items rows;
    bool files = false;
    for (const int artist : selected) {
      const Text folder = world.form3.List1.List(artists.ItemData(artist)) + u'/' + artists.List(artist);
      if (!world.there(folder)) continue;
      for (const auto& album : entries(folder)) {
        files = files || album.kind == platform::EntryKind::File;
        if (album.kind != platform::EntryKind::Folder) continue;
        rows.emplace_back(album.name, 0);
        for (auto& [name, data] : rows)
          if (name == album.name) data = artist;
      }
    }
    if (files) rows.emplace_back(withoutFolder, clicked);
    std::erase_if(rows, [&](const auto& row) { return !shows(row.first); });
    return byYear(rows);
  }
};

TEST_F(BaseListsTest, RandomTreesListAsThePlainRulesSay) {
  std::mt19937 random(7);
  const auto upTo = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
  const std::vector<Text> artists = {u"Same", u"same", u"Alpha", u"Beta", u"Ünder", u"zed"};
  const std::vector<Text> albums = {u"One 2001", u"Two 1999", u"Misc", u"Late 2024", u"Two 1998", u"x 2001"};
  for (int tree = 0; tree < 40; ++tree) {
    folder.removeAll(u"base");
    for (int genre = 0; genre < 4; ++genre)
      for (int i = 0; i < 1 + upTo(5); ++i) {
        Text path =
            u"g" + core::plain(std::int64_t{genre}) + u'/' + artists[static_cast<std::size_t>(upTo(6))];
        if (upTo(3) > 0) path += u'/' + albums[static_cast<std::size_t>(upTo(6))];
        make({path + u"/song.mp3"});
      }
    form3.years.List9.clearSelection();
    if (tree % 3 == 0) form3.years.List9.setSelected(2026 - 2001 + 1, true);
    if (tree % 6 == 0) form3.years.List9.setSelected(2026 - 1999 + 1, true);
    if (tree % 3 > 0) form3.years.List9.setSelected(0, true);
    lists.IzlistajBazu();
    std::vector<int> genres;
    for (int i = 0; i < form3.List1.ListCount(); ++i)
      if (upTo(2) == 0) genres.push_back(i);
    if (genres.empty()) continue;
    form3.List1.select(genres, genres.back());
    PlainLists plain{*this};
    plain.listArtists();
    ASSERT_EQ(items(form3.List2), items(plain.artists));
    if (form3.List2.ListCount() == 0) continue;
    std::vector<int> chosenArtists = {upTo(form3.List2.ListCount()), upTo(form3.List2.ListCount())};
    std::ranges::sort(chosenArtists);
    form3.List2.select(chosenArtists, chosenArtists.back());
    ASSERT_EQ(byYear(items(form3.List3)), plain.albums(form3.List2.selectedIndexes(), chosenArtists.back()));
    EXPECT_TRUE(std::ranges::is_sorted(items(form3.List3), {}, [](const auto& row) {
      return row.first == withoutFolder ? -1 : base::FolderYear(row.first);
    }));
  }
}

}  // namespace
}  // namespace velmora
