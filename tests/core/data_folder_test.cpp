#include "core/data_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/file_errors.h"
#include "tests/support/temp_folder.h"

namespace velmora::core {
namespace {

struct DataFolderTest : testing::Test {
  Bytes read(TextView name) { return folder.read(Text(u"Data/").append(name)); }
  void write(TextView name, BytesView content) { folder.write(Text(u"Data/").append(name), content); }
  bool exists(TextView name) { return folder.exists(Text(u"Data/").append(name)); }

  /// A table as the next start of the program has it.
  struct Loaded : TrackTable {
    explicit Loaded(DataFolder& from) {
      from.readNames(*this);
      from.readTags(*this);
    }
  };
  void save(const TrackTable& saved) {
    data.SaveID3nizove(saved);
    data.savenizove(saved);
    data.writeList(u"bazaniz.txt", saved.bazaniz);
  }

  /// Three rows of the working list and a tail of one, with some of the columns filled.
  void fill() {
    for (const TextView path : {u"/new/a - b.mp3", u"/new/c.mp3", u"/new/\xDCE9, d.mp3", u"/base/e.mp3"})
      table.appendPath(Text(path));
    table.resizeColumns();
    table.setBrojfajlova(3);
    table.bazaniz = {u"/base/e.mp3"};
    table.bazepesama = {u"/new"};
    table.autori = {u"a", u""};
    table.track(1).crtapos = u" 3";
    table.track(2).procitan = true;
    table.track(2).imaid3v1 = false;
    table.track(2).pevacID3v1 = u"";
    table.track(3).albumid3v2 = u"An \u0161 album";
  }

  test::TempFolder folder;
  system::PosixFiles files;
  Settings settings{files, folder.path(u"Settings.ini")};
  DataFolder data{files, settings, folder.path()};
  TrackTable table;
};

TEST_F(DataFolderTest, IsMadeAtTheFirstWriteAndNoEarlier) {
  Loaded{data};
  data.remove(u"nizdes.txt");
  data.writeList(u"autori.txt", {});
  EXPECT_FALSE(folder.exists(u"Data"));
  data.writeList(u"autori.txt", {u"a"});
  EXPECT_EQ(read(u"autori.txt"), "\"a\"\r\n");
}

TEST_F(DataFolderTest, ASavedTableLoadsAsItWas) {
  fill();
  save(table);
  EXPECT_EQ(read(u"procitan.txt"), "\r\n#TRUE#\r\n\r\n\r\n");
  EXPECT_EQ(settings.get(u"ghb"), u" 3");

  const Loaded loaded(data);
  EXPECT_EQ(loaded.rows(), 4);
  EXPECT_EQ(loaded.brojfajlova(), 3);
  EXPECT_EQ(loaded.brojbaza, 1);
  EXPECT_EQ(loaded.autori, table.autori);
  EXPECT_EQ(loaded.bazaniz, table.bazaniz);
  for (const Column column : allColumns()) {
    EXPECT_EQ(loaded.upperBound(column), 4);
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(loaded.element(column, row), table.element(column, row));
  }
}

TEST_F(DataFolderTest, AColumnWithoutRowsHasNoFileAndOneEmptyRowIsARow) {
  table.appendPath(u"/a.mp3");
  data.writeColumn(u"nizdes.txt", table, &Track::nizdes);
  table.truncate(0);
  data.writeColumn(u"nizdes.txt", table, &Track::nizdes);
  EXPECT_FALSE(exists(u"nizdes.txt"));
  data.writeColumn(u"nizdes.txt", table, &Track::nizdes);

  write(u"crtapos.txt", "\r\n");
  EXPECT_EQ(data.readColumn(u"crtapos.txt"), std::vector<Element>(1));
}

TEST_F(DataFolderTest, ColumnsHaveStorageForTheRowsOfTheirFiles) {
  write(u"nizdes.txt", "\"/a.mp3\"\r\n\"/b.mp3\"\r\n");
  write(u"pevacID3v1.txt", "\"x\"\r\n");
  write(u"imaid3v1.txt", "#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
  TrackTable loaded;
  data.readNames(loaded);
  EXPECT_EQ(loaded.brojfajlova(), 2) << "all rows, for the time being";
  data.readTags(loaded);
  EXPECT_EQ(loaded.brojfajlova(), 0) << "without its key the list is empty";
  EXPECT_EQ(loaded.upperBound(&Track::nizdes), 2);
  EXPECT_EQ(loaded.upperBound(&Track::pevac), 2);
  EXPECT_EQ(loaded.upperBound(&Track::crtapos), -1);
  EXPECT_EQ(loaded.upperBound(&Track::procitan), -1);
  EXPECT_EQ(loaded.upperBound(&Track::pevacID3v1), 1) << "a short column stays short";
  loaded.appendPath(u"/new.mp3");
  EXPECT_FALSE(loaded.track(3).imaid3v1.isTrue()) << "a word of a row that is gone speaks of no other";
}

TEST_F(DataFolderTest, ACountThatTheRowsCannotBearNeverTakesInTheTail) {
  fill();
  save(table);
  for (const auto& [stored, taken] : {std::pair{u"9000", 3}, {u"-5", 0}, {u"many", 0}, {u"1E99", 3}}) {
    settings.set(u"ghb", stored);
    EXPECT_EQ(Loaded(data).brojfajlova(), taken) << toBytes(stored);
  }
  write(u"nizdes.txt", "\"/new/a - b.mp3\"\r\n\"/new/c.mp3\"\r\n\"/new");
  settings.set(u"ghb", u" 3");
  EXPECT_EQ(Loaded(data).brojfajlova(), 2) << "a list that lost its end is the user's own to its last row";
}

TEST_F(DataFolderTest, NamesInItHaveNoCase) {
  data.writeList(u"pevacid3v1.txt", {u"a"});
  data.writeList(u"pevacID3v1.txt", {u"b"});
  EXPECT_EQ(data.readList(u"PEVACID3V1.TXT"), std::vector<Text>{u"b"});
  EXPECT_EQ(read(u"pevacID3v1.txt"), "\"b\"\r\n");
  EXPECT_FALSE(exists(u"pevacid3v1.txt"));
  write(u"AUTORI.TXT", "\"brought along\"\r\n");
  EXPECT_EQ(data.readList(u"autori.txt"), std::vector<Text>{u"brought along"});
  data.remove(u"autori.txt");
  EXPECT_FALSE(exists(u"AUTORI.TXT"));
}

TEST_F(DataFolderTest, AColumnThatCannotBeWrittenLosesItsFile) {
  data.writeList(u"autori.txt", {u"old"});
  ASSERT_EQ(::chmod(toBytes(data.path(u"autori.txt")).c_str(), 0444), 0);
  data.writeList(u"autori.txt", {u"new"});
  EXPECT_FALSE(exists(u"autori.txt"));
  folder.removeAll(u"Data");
  folder.write(u"Data", "a file where the folder should be");
  data.writeList(u"autori.txt", {u"a"});
  EXPECT_EQ(folder.read(u"Data"), "a file where the folder should be");
  EXPECT_TRUE(data.readList(u"autori.txt").empty());
}

TEST_F(DataFolderTest, AFullDiskCostsTheColumnsThatDoNotFitAndNoOther) {
  fill();
  table.track(1).albumid3v1 = Text(5000, u'x');
  data.SaveID3nizove(table);
  {
    const test::FileSizeLimit full(4096);
    table.track(1).albumid3v1 = Text(6000, u'x');
    data.SaveID3nizove(table);
  }
  EXPECT_FALSE(exists(u"albumid3v1.txt"));
  EXPECT_EQ(read(u"procitan.txt"), "\r\n#TRUE#\r\n\r\n\r\n");
}

TEST_F(DataFolderTest, ARowWithoutAnElementInEachTagColumnIsUnread) {
  fill();
  for (int row = 1; row <= 4; ++row) table.track(row).procitan = true;
  save(table);
  const auto readRows = [this] {
    const Loaded loaded(data);
    int read = 0;
    for (int row = 1; row <= loaded.rows(); ++row) read += loaded.track(row).procitan.isTrue() ? 1 : 0;
    return read;
  };
  EXPECT_EQ(readRows(), 4);
  write(u"albumid3v2.txt", "\r\n\r\n\"An");
  EXPECT_EQ(readRows(), 2);
  for (const Column lost : {&Track::pevacID3v1, &Track::procitan}) {
    data.remove(DataFolder::fileOf(lost));
    EXPECT_EQ(readRows(), 0);
    Loaded again(data);
    again.track(3).procitan = true;
    again.track(3).pevacID3v1 = u"b";
    data.SaveID3nizove(again);
    EXPECT_EQ(readRows(), 1) << "what was read again is kept";
    EXPECT_EQ(Loaded(data).track(3).pevacID3v1, Element(u"b"));
  }
}

// The column files are cut, at every length, one at a time; then the table is loaded, saved and loaded again.
TEST_F(DataFolderTest, CutAnywhereTheWholeRowsAreLeftAndASaveKeepsThem) {
  fill();
  save(table);
  for (const Column column : {&Track::nizdes, &Track::crtapos, &Track::procitan, &Track::albumid3v2}) {
    const TextView file = DataFolder::fileOf(column);
    const Bytes whole = read(file);
    for (std::size_t cut = 0; cut < whole.size(); ++cut) {
      write(file, BytesView(whole).substr(0, cut));
      const auto wholeRows = static_cast<int>(std::ranges::count(whole.substr(0, cut), '\n'));
      const Loaded loaded(data);
      for (int row = 1; row <= std::min(wholeRows, loaded.rows()); ++row)
        ASSERT_EQ(loaded.element(column, row), table.element(column, row)) << "cut at " << cut;

      save(loaded);
      const Loaded again(data);
      ASSERT_EQ(again.rows(), loaded.rows());
      ASSERT_EQ(again.brojfajlova(), loaded.brojfajlova());
      for (int row = 1; row <= again.rows(); ++row)
        ASSERT_EQ(again.element(column, row), loaded.element(column, row)) << "cut at " << cut;
      save(table);
    }
    write(file, whole);
  }
}

TEST_F(DataFolderTest, AfterAChangeThatWasCutShortNoRowIsTakenForRead) {
  fill();
  save(table);
  data.beginChange();
  table.removeRow(1);
  data.savenizove(table);
  Loaded loaded(data);
  for (int row = 1; row <= loaded.rows(); ++row)
    EXPECT_FALSE(loaded.track(row).procitan.isTrue()) << "its tags are those of the row above";
  loaded.track(2).procitan = true;
  data.SaveID3nizove(loaded);
  EXPECT_TRUE(Loaded(data).track(2).procitan.isTrue()) << "read again, and kept";
  data.SaveID3nizove(table);
  EXPECT_TRUE(Loaded(data).track(1).procitan.isTrue());
}

TEST_F(DataFolderTest, ACountOfAChangeThatWasCutShortIsNotThatOfTheRows) {
  fill();
  save(table);
  data.beginChange();
  for (const int ofOtherRows : {1, 4}) {
    settings.setNumber(u"ghb", ofOtherRows);
    EXPECT_EQ(Loaded(data).brojfajlova(), 3);
  }
  data.remove(u"bazaniz.txt");
  for (int tail = 1; tail <= 2; ++tail) {
    const Loaded loaded(data);
    EXPECT_EQ(loaded.rows(), 3 + tail);
    EXPECT_EQ(loaded.brojfajlova(), 3);
    table.appendPath(u"/base/f.mp3");
    data.savenizove(table);
  }
}

}  // namespace
}  // namespace velmora::core
