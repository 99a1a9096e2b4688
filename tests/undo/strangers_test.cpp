// What undo does where the disk, the table or the journal is not as the commands left it.

#include <algorithm>
#include <set>

#include "core/paths.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "journal/undo_record.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using journal::lengthPrefixed;
using test::Names;

struct StrangersTest : test::RepairBench {
  Bytes stranger(TextView name) {
    const Bytes bytes = test::Id3v2Maker().values({.title = u"better"}).padding(40).bytes() +
                        test::mpegFrames(7) + test::id3v1Tag({.title = u"better"});
    program.folder.write(u"music/in/" + Text(name) + u".mp3", bytes);
    return bytes;
  }
  Bytes read(TextView name) { return program.folder.read(u"music/in/" + Text(name) + u".mp3"); }
  Bytes journal() const { return program.folder.read(u"program/UndoData.txt"); }
  void write(BytesView journal) {
    program.folder.write(u"program/UndoData.txt", journal);
    program.restart();
  }
  void makeTags(TextView name) {
    form1().tags.writeID3v1.setChecked(true);
    form1().tags.writeID3v2.setChecked(true);
    select({Text(name)});
    click(tools().fnToId3);
  }
  void remove(TextView name) {
    select({Text(name)});
    form1().List4.onKey({ui::Key::Delete, true});
  }
};

struct StrangersBothWays : StrangersTest, testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(Both, StrangersBothWays, testing::Bool());

TEST_P(StrangersBothWays, RecordsFindTheirSongAndLeaveAloneWhoeverTookItsName) {
  const bool restarts = GetParam();
  add({{u"arvola_one"}, {u"kora - two"}});
  makeTags(u"arvola_one");
  clickForAll(tools().fixSyntax);
  remove(u"Arvola One");
  const Bytes better = stranger(u"Arvola One");
  const Bytes best = stranger(u"arvola_one") + "";
  const auto undoOnce = [&] {
    if (restarts) program.restart();
    undo();
  };
  undoOnce();
  EXPECT_EQ(listed(), (Names{"Arvola One ", "Kora - Two"}));
  program.dialogs.expectTitle(u"Rename", platform::Answer::Ignore);
  undoOnce();
  EXPECT_EQ(listed(), (Names{"Arvola One ", "kora - two"}));
  EXPECT_NE(tagsOf(u"Arvola One "), "none / none");
  undoOnce();
  EXPECT_EQ(tagsOf(u"Arvola One "), "none / none");
  EXPECT_EQ(listed(), (Names{"Arvola One ", "kora - two"}));
  EXPECT_EQ(read(u"Arvola One"), better);
  EXPECT_EQ(read(u"arvola_one"), best);
}

TEST_P(StrangersBothWays, AKilledRenameIsKnownByTheFilesAndNotByTheirNames) {
  const bool moved = GetParam();
  add({{u"a_1"}});
  makeTags(u"a_1");
  clickForAll(tools().fixSyntax);
  const Bytes record = journal();
  // The table of before, and another file under the name that the song does not bear.
  program.table().track(1).nizdes = pathOf(u"a_1");
  if (!moved) program.files.move(pathOf(u"A 1"), pathOf(u"a_1"));
  const Text taken = moved ? u"a_1" : u"A 1";
  const Bytes other = stranger(taken);
  write(record);
  if (moved) program.dialogs.expectTitle(u"Rename", platform::Answer::Ignore);
  undo();
  EXPECT_EQ(read(taken), other);
  const Text place = moved ? u"A 1" : u"a_1";
  EXPECT_EQ(listed(), (Names{core::toBytes(place)}));
  undo();
  EXPECT_EQ(read(taken), other);
  EXPECT_EQ(tagsOf(place), "none / none");
}

TEST_F(StrangersTest, AFileInThePlaceOfAMovedOneStaysAndNoRowIsPointedAtOne) {
  add({{u"keep"}});
  const Text before = program.folder.write(u"music/song.mp3", "another");
  const Text now = program.song(u"base/song.mp3");
  const auto line = [&](TextView identity, std::uint64_t size) {
    return "\"st1\"\r\n\"mov" +
           core::toBytes(lengthPrefixed(before) + u' ' + journal::movedFile(now, identity, size)) + "\"\r\n";
  };
  write(line(u"1.2.3", 7));
  program.dialogs.expect(u"Canot move back. File " + now + u" is not the one that was moved there.", u"Undo",
                         platform::Answer::Ok);
  undo();
  EXPECT_TRUE(program.files.fileExists(now));
  // The same size, as after a way across volumes, or the same file.
  write(line(u"1.2.3", program.files.size(now)));
  undo();
  EXPECT_TRUE(program.files.fileExists(program.folder.path(u"music/song .mp3")));
  EXPECT_EQ(program.folder.read(u"music/song.mp3"), "another");
}

TEST_F(StrangersTest, ARowBehindOneThatStayedOutComesBackInItsPlaceAndIsFound) {
  add({{u"a_1"}, {u"b_2"}, {u"c_3"}, {u"d_4"}});
  clickForAll(tools().fixSyntax);
  std::vector<Text> order;
  for (int row = 1; row <= 4; ++row)
    if (row != rowOf(u"A 1")) order.push_back(program.table().path(row));
  select({u"A 1", u"C 3"});
  form1().List4.onKey({ui::Key::Delete, true});
  program.files.remove(program.folder.path(u"trash/files/A 1.mp3"));
  stranger(u"A 1");
  program.dialogs.expectTitle(u"Undo", platform::Answer::Ok);
  undo();
  ASSERT_EQ(program.table().brojfajlova(), 3);
  for (int row = 1; row <= 3; ++row)
    EXPECT_EQ(program.table().path(row), order[static_cast<std::size_t>(row - 1)]);
  undo();
  EXPECT_EQ(listed(), (Names{"b_2", "c_3", "d_4"}));
  EXPECT_EQ(names(), (Names{"A 1", "b_2", "c_3", "d_4"})) << "the file that is in no row keeps its name";
}

TEST_F(StrangersTest, ARowThatComesBackBehindALostOneStaysAheadOfTheBase) {
  add({{u"a"}, {u"b"}, {u"c"}});
  program.table().appendPath(u"/base/x.mp3");
  program.table().resizeColumns();
  std::vector<Text> order;
  for (int row = 1; row <= 3; ++row) order.push_back(program.table().path(row));
  const auto removeRow = [this](int row) {
    form1().List4.select({row - 1}, row - 1);
    form1().List4.onKey({ui::Key::Delete, true});
  };
  removeRow(3);
  removeRow(2);
  program.files.remove(program.folder.path(u"trash/files/" + Text(core::paths::fileName(order[1]))));
  program.dialogs.expectTitle(u"Undo", platform::Answer::Ok);
  undoAll();
  EXPECT_EQ(program.table().brojfajlova(), 2);
  EXPECT_EQ(program.table().path(2), order[2]);
  EXPECT_EQ(program.table().path(3), u"/base/x.mp3");
}

TEST_F(StrangersTest, TheTableIsSavedBeforeItsRecordsGo) {
  add({{u"a_1"}});
  clickForAll(tools().fixSyntax);
  program.faults.log.clear();
  undo();
  const auto& log = program.faults.log;
  const auto cut = std::ranges::find_if(log, [](const auto& line) { return line.starts_with("file cut"); });
  const auto isSave = [](const auto& line) { return line.find("/Data/") != std::string::npos; };
  EXPECT_NE(cut, log.end());
  EXPECT_TRUE(std::any_of(log.begin(), cut, isSave));
  EXPECT_TRUE(std::none_of(cut, log.end(), isSave));
}

TEST_F(StrangersTest, AFileWhoseRowCannotBeReadGetsAFreshOne) {
  add({{u"a - one"}, {u"b - two"}});
  const int row = rowOf(u"a - one");
  const Text title = program.table().track(row).pesma.text();
  remove(u"a - one");
  Bytes damaged = journal();
  const std::size_t at = damaged.find("\"izb");
  damaged.replace(at + 13, 3, "999");
  write(damaged);
  undo();
  EXPECT_EQ(listed(), (Names{"a - one", "b - two"}));
  EXPECT_EQ(rowOf(u"a - one"), row);
  EXPECT_EQ(program.table().track(row).pesma.text(), title);
}

TEST_F(StrangersTest, StopNeverFallsBetweenAFileAndItsRow) {
  add({{u"a"}, {u"b"}});
  selectAll();
  form1().List4.onKey({ui::Key::Delete, true});
  program.faults.onOperation = [this] {
    if (program.faults.log.back().starts_with("move ")) program.table().Stop = true;
  };
  undo();
  program.faults.onOperation = nullptr;
  EXPECT_EQ(names().size(), 1u);
  EXPECT_EQ(listed(), names());
  undoAll();
  EXPECT_EQ(listed(), (Names{"a", "b"}));
}

TEST_F(StrangersTest, LongPathsAndNamesWhoseStrayBytesMeetComeBack) {
  const Text stray =
      u"\xDCD0"
      u"1999"
      u"\xDCBB";
  Text folder = u"in/";
  for (int i = 0; i < 5; ++i) folder += Text(240, u'd') + u'/';
  program.song(folder + u"deep_1.mp3");
  program.song(u"in/" + stray + u".mp3");
  program.startWithMusic();
  const auto rows = [this] {
    std::set<Text> all;
    for (int row = 1; row <= program.table().brojfajlova(); ++row) {
      EXPECT_TRUE(program.files.fileExists(program.table().path(row)));
      all.insert(program.table().path(row));
    }
    return all;
  };
  const std::set<Text> before = rows();
  ASSERT_EQ(before.size(), 2u);
  clickForAll(tools().removeYearNumber);
  EXPECT_TRUE(rows().contains(pathOf(u"\u043B")));
  clickForAll(tools().fixSyntax);
  selectAll();
  form1().List4.onKey({ui::Key::Delete, true});
  EXPECT_EQ(rows().size(), 0u);
  program.restart();
  undoAll();
  EXPECT_EQ(rows(), before);
}

TEST_F(StrangersTest, ATagThatAnotherProgramHasPutAPictureIntoStays) {
  add({{u"arvola - one"}});
  form1().tags.writeID3v1.setChecked(false);
  form1().tags.writeID3v2.setChecked(true);
  clickForAll(tools().fnToId3);
  program.files.writeAll(
      pathOf(u"arvola - one"),
      test::Id3v2Maker().values({.title = u"one", .artist = u"arvola"}).picture(20).padding(30).bytes() +
          test::mpegFrames());
  undo();
  EXPECT_NE(read(u"arvola - one").find("APIC"), Bytes::npos);
  EXPECT_EQ(second(u"arvola - one"), "||||");
}

}  // namespace
}  // namespace velmora
