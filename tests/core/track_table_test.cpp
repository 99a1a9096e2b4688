#include "core/track_table.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace velmora::core {
namespace {

void addRows(TrackTable& table, int rows) {
  for (int row = 1; row <= rows; ++row)
    table.appendPath(u"/" + Text(1, static_cast<char16_t>(u'a' + row - 1)));
}

TEST(TrackTable, AnErasedColumnHasNoStorageAndOthersKeepTheirs) {
  TrackTable table;
  addRows(table, 2);
  EXPECT_EQ(table.upperBound(&Track::nizdes), 2);
  EXPECT_EQ(table.upperBound(&Track::crtapos), 0);
  table.resizeColumns();
  for (const Column column : allColumns()) EXPECT_EQ(table.upperBound(column), 2);
  table.track(2).albumid3v1 = u"kept";
  table.track(2).procitan = true;
  table.erase(&Track::nizdes);
  table.erase(&Track::procitan);
  EXPECT_EQ(table.rows(), 0);
  EXPECT_EQ(table.upperBound(&Track::procitan), -1);
  EXPECT_EQ(table.upperBound(&Track::albumid3v1), 2);
  EXPECT_EQ(table.element(&Track::albumid3v1, 2), Element(u"kept")) << "beyond the rows";

  addRows(table, 2);
  EXPECT_EQ(table.track(2).albumid3v1, Element(u"kept"));
  EXPECT_TRUE(table.track(2).procitan.isNothing());
}

TEST(TrackTable, ARowThatIsNotThereIsBlankAndKeepsNothing) {
  TrackTable table;
  addRows(table, 1);
  for (const int row : {-1, 0, 2, 99}) {
    table.track(row).pevacID3v1 = u"lost";
    EXPECT_TRUE(table.track(row).pevacID3v1.isNothing());
    EXPECT_EQ(table.path(row), u"");
  }
  table.setBrojfajlova(5);
  EXPECT_EQ(table.workingRows(), 1);
}

TEST(TrackTable, RowsComeAndGoInAllColumns) {
  TrackTable table;
  addRows(table, 4);
  table.resizeColumns();
  table.setBrojfajlova(3);
  table.track(2).pesmaid3v2 = u"second";
  table.removeRow(1);
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.brojfajlova(), 2);
  EXPECT_EQ(table.track(1).pesmaid3v2, Element(u"second"));
  table.removeRow(3);
  EXPECT_EQ(table.brojfajlova(), 2) << "a row of the tail";

  table.insertRow(1);
  EXPECT_EQ(table.path(1), u"");
  EXPECT_EQ(table.path(2), u"/b");
  EXPECT_EQ(table.brojfajlova(), 2);
  table.removeRow(9);
  table.insertRow(9);
  EXPECT_EQ(table.rows(), 3);
}

// Whatever changes the table, the counts kept per artist are those of a plain count.
TEST(TrackTable, ArtistCountsStayRight) {
  std::mt19937 random(7);
  const std::vector<Text> artists = {u"", u"a", u"b", u"c"};
  TrackTable table;
  for (int step = 0; step < 4000; ++step) {
    const int row = static_cast<int>(random() % static_cast<unsigned>(table.rows() + 2));
    switch (random() % 8) {
      case 0:
      case 1:
        table.appendPath(u"/x");
        break;
      case 2:
        table.removeRow(row);
        break;
      case 3:
        table.insertRow(row);
        break;
      case 4:
        table.setBrojfajlova(row);
        break;
      case 5:
        if (step % 20 == 0) table.truncate(row);
        table.resizeColumns();
        break;
      default:
        table.setParts(row, artists[random() % artists.size()], u"t");
    }
    for (const Text& artist : artists) {
      TrackTable::ArtistRows plain;
      for (int i = 1; i <= table.rows(); ++i)
        if (table.track(i).pevac.text() == artist) ++(i <= table.brojfajlova() ? plain.working : plain.tail);
      const auto counted = table.artistRows(artist);
      ASSERT_EQ(counted.working, plain.working) << "step " << step;
      ASSERT_EQ(counted.tail, plain.tail) << "step " << step;
    }
  }
}

}  // namespace
}  // namespace velmora::core
