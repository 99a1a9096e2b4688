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

TEST_F(DataFolderTest, ColumnsOfDifferentLengthsProveALostRecord) {
  fill();
  for (int row = 1; row <= 4; ++row) table.track(row).procitan = true;
  for (const Column lost : {&Track::nizdes, &Track::crtapos, &Track::albumid3v2, &Track::procitan}) {
    save(table);
    const TextView file = DataFolder::fileOf(lost);
    const Bytes whole = read(file);
    const std::size_t second = whole.find('\n') + 1;
    write(file, Bytes(whole).erase(second, whole.find('\n', second) + 1 - second));
    const Loaded loaded(data);
    SCOPED_TRACE(toBytes(file));
    EXPECT_EQ(data.namesTrue(), lost != &Track::nizdes && lost != &Track::crtapos);
    EXPECT_EQ(loaded.path(loaded.brojfajlova() + 1), u"/base/e.mp3") << "the base stays out";
    EXPECT_EQ(loaded.brojfajlova(), loaded.rows() - 1);
    for (const Column column : tagColumns())
      for (int row = 1; row <= loaded.rows(); ++row) EXPECT_TRUE(loaded.element(column, row).isNothing());
  }
}

TEST_F(DataFolderTest, AMissingOrTornCountLosesNoRowAndNeverTakesInTheTail) {
  fill();
  save(table);
  for (const TextView stored : {u"9000", u"-5", u"many", u"1E99", u""}) {
    settings.set(u"ghb", stored);
    EXPECT_EQ(Loaded(data).brojfajlova(), 3) << toBytes(stored);
  }
  data.writeList(u"bazaniz.txt", {u"/base/of/later.mp3", u"/base/e.mp3"});
  EXPECT_EQ(Loaded(data).brojfajlova(), 3) << "a list of the base that is newer than the rows";
  data.remove(u"bazaniz.txt");
  settings.set(u"DirZaBazu", u"/base");
  EXPECT_EQ(Loaded(data).brojfajlova(), 3);
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

TEST_F(DataFolderTest, WhatCannotBeReadOrWrittenIsMovedAside) {
  data.writeList(u"autori.txt", {u"old"});
  ASSERT_EQ(::chmod(toBytes(data.path(u"autori.txt")).c_str(), 0444), 0);
  data.writeList(u"autori.txt", {u"new"});
  EXPECT_EQ(read(u"autori.txt"), "\"new\"\r\n");
  EXPECT_EQ(read(u"autori.txt.kept"), "\"old\"\r\n");

  write(u"nizdes.txt/kept inside", "x");
  fill();
  EXPECT_EQ(Loaded(data).rows(), 0);
  data.remove(u"nizdes.txt");
  EXPECT_EQ(read(u"nizdes.txt.kept/kept inside"), "x") << "not even removed by who clears the list";
  save(table);
  EXPECT_EQ(Loaded(data).rows(), 4);

  folder.removeAll(u"Data");
  folder.write(u"Data", "a file where the folder should be");
  data.writeList(u"autori.txt", {u"a"});
  EXPECT_EQ(folder.read(u"Data"), "a file where the folder should be");
  EXPECT_TRUE(data.readList(u"autori.txt").empty());
}

TEST_F(DataFolderTest, AByteOrderMarkThatAnEditorHasPutInFrontDoesNoHarm) {
  write(u"nizdes.txt", "\xEF\xBB\xBF\"/a.mp3\"\r\n");
  folder.write(u"Settings.ini", "\xEF\xBB\xBF\"GHB   1\"\r\n");
  const Loaded loaded(data);
  EXPECT_EQ(loaded.path(1), u"/a.mp3");
  EXPECT_EQ(loaded.brojfajlova(), 1);
}

TEST_F(DataFolderTest, AFullDiskLeavesTheLastGoodListWhole) {
  fill();
  save(table);
  const Bytes before = read(u"nizdes.txt") + read(u"albumid3v2.txt") + read(u"procitan.txt");
  for (int row = 1; row <= 3; ++row) table.track(row).procitan = true;
  table.track(1).albumid3v1 = Text(6000, u'x');
  table.bazepesama.push_back(Text(6000, u'y'));
  table.removeRow(2);
  {
    const test::FileSizeLimit full(4096);
    save(table);
  }
  EXPECT_EQ(read(u"nizdes.txt") + read(u"albumid3v2.txt") + read(u"procitan.txt"), before);
  EXPECT_EQ(settings.get(u"ghb"), u" 3");
  EXPECT_FALSE(exists(u"bazepesama.txt.new"));
  EXPECT_FALSE(Loaded(data).track(2).procitan.isTrue()) << "what the columns tell is older than the songs";
  save(table);
  EXPECT_EQ(Loaded(data).rows(), 3);
  EXPECT_TRUE(Loaded(data).track(2).procitan.isTrue());
}

TEST_F(DataFolderTest, WithoutOneOfItsTagColumnsARowIsUnread) {
  fill();
  for (int row = 1; row <= 4; ++row) table.track(row).procitan = true;
  for (const Column lost : {&Track::pevacID3v1, &Track::procitan}) {
    save(table);
    EXPECT_TRUE(Loaded(data).track(3).procitan.isTrue());
    table.track(1).pevacID3v1 = u"a";
    save(table);
    data.remove(DataFolder::fileOf(lost));
    Loaded again(data);
    for (int row = 1; row <= 4; ++row) EXPECT_FALSE(again.track(row).procitan.isTrue());
    again.track(3).procitan = true;
    again.track(3).pevacID3v1 = u"b";
    data.SaveID3nizove(again);
    EXPECT_TRUE(Loaded(data).track(3).procitan.isTrue()) << "what was read again is kept";
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
      const bool tags = column == &Track::procitan || column == &Track::albumid3v2;
      for (int row = 1; row <= std::min(wholeRows, loaded.rows()) && !(tags && wholeRows < 4); ++row)
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

TEST_F(DataFolderTest, AfterAChangeThatWasCutShortATagColumnTellsNothing) {
  fill();
  table.track(2).imaid3v2 = true;
  save(table);
  data.beginChange();
  table.removeRow(1);
  data.savenizove(table);
  Loaded loaded(data);
  EXPECT_FALSE(data.namesTrue());
  for (const Column column : tagColumns())
    for (int row = 1; row <= loaded.rows(); ++row)
      EXPECT_TRUE(loaded.element(column, row).isNothing()) << "it is that of the row above";
  loaded.track(2).procitan = true;
  data.SaveID3nizove(loaded);
  EXPECT_TRUE(Loaded(data).track(2).procitan.isTrue()) << "read again, and kept";
  data.SaveID3nizove(table);
  EXPECT_TRUE(Loaded(data).track(1).procitan.isTrue());
}

TEST_F(DataFolderTest, WhatAnotherInstanceHasSavedIsKept) {
  const Text mine = folder.write(u"in/mine.mp3", "x");
  const Text theirs = folder.write(u"in/theirs.mp3", "x");
  fill();
  save(table);
  DataFolder other(files, settings, folder.path());
  Loaded theirTable(other);
  theirTable.insertRow(1);
  theirTable.track(1).nizdes = theirs;
  theirTable.track(1).procitan = true;
  theirTable.setBrojfajlova(4);
  theirTable.niznomusic = {folder.write(u"in/cover.jpg", "x")};
  other.savenizove(theirTable);
  other.SaveID3nizove(theirTable);
  EXPECT_EQ(other.takeNoticeOfOthers(), std::nullopt);

  data.SaveID3nizove(table);
  other.savenizove(theirTable);
  EXPECT_FALSE(Loaded(other).track(1).procitan.isTrue()) << "the tags of one, the rows of the other";

  table.insertRow(1);
  table.track(1).nizdes = mine;
  table.setBrojfajlova(4);
  for (int saves = 0; saves < 2; ++saves) data.savenizove(table);
  EXPECT_EQ(data.takeNoticeOfOthers(), 1u);
  EXPECT_EQ(data.takeNoticeOfOthers(), std::nullopt);
  DataFolder next(files, settings, folder.path());
  const Loaded loaded(next);
  EXPECT_EQ(loaded.rows(), 6);
  EXPECT_EQ(loaded.brojfajlova(), 5);
  EXPECT_EQ(loaded.path(1), mine);
  EXPECT_EQ(loaded.path(5), theirs);
  EXPECT_EQ(loaded.niznomusic, theirTable.niznomusic);
  EXPECT_FALSE(next.namesTrue());
  for (int row = 1; row <= 6; ++row) EXPECT_FALSE(loaded.track(row).procitan.isTrue());
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
