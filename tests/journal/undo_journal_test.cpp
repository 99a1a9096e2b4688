#include "journal/undo_journal.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/text.h"
#include "journal/pending_record.h"
#include "journal/undo_record.h"
#include "platform/file_error.h"
#include "system/posix_files.h"
#include "tests/support/fault_files.h"
#include "tests/support/temp_folder.h"

namespace velmora::journal {
namespace {

using Texts = std::vector<Text>;

struct UndoJournalTest : testing::Test {
  test::TempFolder folder;
  system::PosixFiles files;
  core::Settings settings{files, folder.path(u"Settings.ini")};
  UndoJournal journal = opened();

  void SetUp() override { settings.set(u"ghb", u" 1"); }
  /// The journal as a new start of the program sees it.
  UndoJournal opened() { return {files, settings, folder.path(u"UndoData.txt")}; }
  void write(BytesView bytes) { folder.write(u"UndoData.txt", bytes); }
  Bytes bytes() { return folder.read(u"UndoData.txt"); }
};

TEST_F(UndoJournalTest, EachRecordIsOneQuotedLine) {
  std::vector<std::string> heard;
  journal.onMarker = [&](std::string_view kind) { heard.emplace_back(kind); };
  journal.appendUndoMarker("st1");
  journal.appendUndoRecord("mov", u"/a/\u0161.mp3", u"/b");
  journal.appendUndoRecord("mkd", u"/new", u"");
  EXPECT_EQ(bytes(), "\"st1\"\r\n\"mov008/a/\xC5\xA1.mp3 /b\"\r\n\"mkd004/new \"\r\n");
  EXPECT_EQ(heard, (std::vector<std::string>{"st1"}));
  EXPECT_EQ(journal.readRecords(), (Texts{u"st1", u"mov008/a/\u0161.mp3 /b", u"mkd004/new "}));
}

TEST_F(UndoJournalTest, LengthsCountCharactersAndTellLongTextsByAMark) {
  EXPECT_EQ(lengthPrefixed(u" 12"), u"003 12");
  EXPECT_EQ(lengthPrefixed(Text(1000, u'1')).substr(0, 8), u"#1000:11");
  for (const std::size_t length : {0u, 1u, 999u, 1000u, 123456u}) {
    const Text text(length, u'1');
    journal.appendUndoRecord("mov", text, u"rest");
    const Text line = journal.readRecords().back();
    const auto data = parseUndoRecord(line).data;
    ASSERT_TRUE(data) << length;
    EXPECT_EQ(data->first, text);
    EXPECT_EQ(data->rest, u"rest");
  }
  for (const TextView bad : {u"#", u"#:", u"#3", u"#3:ab", u"#x:a", u"#1234567890:"})
    EXPECT_FALSE(FieldReader(bad).next()) << core::toBytes(bad);
}

struct JournalGroup : UndoJournalTest {
  test::FaultFiles faults{files};
  UndoJournal watched{faults, settings, folder.path(u"UndoData.txt")};

  void change() { PendingRecord(watched, "ren", u"/b", u"/a").keep(); }
  std::ptrdiff_t count(std::string_view operation) const {
    return std::ranges::count_if(faults.log, [&](const auto& line) { return line.starts_with(operation); });
  }
};

TEST_F(JournalGroup, OpensTheFileOnceAndBringsItToTheDiskAtItsTimes) {
  const auto flushes = [this] { return count("file flush"); };
  {
    UndoJournal::Group group(watched);
    watched.appendUndoMarker("st1");
    EXPECT_EQ(flushes(), 0);
    change();
    EXPECT_EQ(flushes(), 1) << "ahead of the first change";
    for (int i = 0; i < 255; ++i) change();
    EXPECT_EQ(flushes(), 1);
    change();
    EXPECT_EQ(flushes(), 2);
    const UndoJournal::Group inner(watched);
    EXPECT_EQ(watched.lastUndoMarker(), "st1") << "readable all the time";
  }
  EXPECT_EQ(flushes(), 2) << "all was there";
  EXPECT_EQ(count("create") + count("open to write"), 1);
  {
    UndoJournal::Group group(watched);
    change();
    change();
    group.end();
    EXPECT_EQ(flushes(), 4) << "the first, and the end";
  }
  EXPECT_EQ(journal.readRecords().size(), 260u);
}

TEST_F(JournalGroup, ARecordGoesAgainWhereItsChangeWasNotMade) {
  watched.appendUndoMarker("st1");
  const Bytes before = bytes();
  { const PendingRecord pending(watched, {{"izb", u" 1", u"x"}, {"mov", u"/a", u"/b"}}); }
  EXPECT_EQ(bytes(), before);
  {
    const PendingRecord pending(watched, "mov", u"/a", u"/b");
    journal.appendUndoMarker("st2");
  }
  EXPECT_EQ(journal.readRecords().size(), 3u) << "what another program wrote behind it stays";
  change();
  EXPECT_EQ(journal.readRecords().size(), 4u);
}

TEST_F(JournalGroup, AFailureIsToldOnceAndLeavesNothingHalfWritten) {
  watched.appendUndoMarker("st1");
  const Bytes before = bytes();
  faults.tearsWrites = true;
  int told = 0;
  watched.onNotRecorded = [&](const platform::FileError& cause) {
    ++told;
    EXPECT_EQ(cause.number, platform::FileError::diskFull);
  };
  // Opening, its length, its last byte, the write and the flush.
  for (int nth = 1; nth <= 5; ++nth) {
    UndoJournal::Group group(watched);
    faults.failAt(nth, platform::FileError::diskFull);
    EXPECT_THROW(change(), NotRecorded) << nth;
    EXPECT_EQ(told, nth);
    EXPECT_EQ(bytes(), before) << nth;
    faults.failFrom(1, platform::FileError::diskFull);
    EXPECT_THROW(change(), NotRecorded) << nth;
    EXPECT_EQ(told, nth) << "once in a group";
    faults.failNoMore();
  }
  change();
  EXPECT_EQ(journal.readRecords().size(), 2u);
}

TEST_F(UndoJournalTest, TheTopmostMarkerIsFoundFromTheEnd) {
  EXPECT_EQ(journal.lastUndoMarker(), "");
  EXPECT_FALSE(journal.exists());
  for (const char* kind : {"new", "st1", "st2", "fst", "dst"}) {
    journal.appendUndoMarker(kind);
    journal.appendUndoRecord("bi1", u":::", u"");
    EXPECT_EQ(journal.lastUndoMarker(), kind);
  }
  journal.appendUndoRecord("fix", u" 7", u"");
  EXPECT_EQ(journal.lastUndoMarker(), "fix") << "a stop of a review counts as one";
  folder.write(u"Settings.ini", "");
  files.remove(folder.path(u"Settings.ini"));
  EXPECT_EQ(journal.lastUndoMarker(), "") << "without settings the journal is not read";
}

TEST_F(UndoJournalTest, TheMarkerIsFoundBehindAnyLengthOfRecords) {
  journal.appendUndoMarker("st2");
  Bytes lines = bytes();
  // Records of many lengths, so that the edges of blocks fall on every part of a line.
  for (std::size_t length = 0; length < 900; ++length)
    lines += "\"mov" + Bytes(length, length % 7 == 0 ? '"' : 'x') + "\"\r\n";
  write(lines);
  EXPECT_EQ(opened().lastUndoMarker(), "st2");
  EXPECT_EQ(opened().readRecords().size(), 901u);
}

TEST_F(UndoJournalTest, ARecordMayBeginAtTheBorderOfABlock) {
  constexpr std::size_t block = 65536;
  for (std::size_t length = block - 3; length <= block + 3; ++length) {
    write("\"st1\"\r\n\"" + Bytes(length - 4, 'x') + "\"\r\n");
    std::vector<std::uint64_t> begins;
    journal.visitFromNewest([&](const Text&, std::uint64_t offset) {
      begins.push_back(offset);
      return true;
    });
    EXPECT_EQ(begins, (std::vector<std::uint64_t>{7, 0})) << length;
  }
}

TEST_F(UndoJournalTest, ATornTailIsDroppedAndSwallowsNoLaterRecord) {
  journal.appendUndoMarker("st1");
  journal.appendUndoRecord("mov", u"/a", u"/b");
  journal.appendUndoMarker("st2");
  const Bytes whole = bytes();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    write(BytesView(whole).substr(0, length));
    // A record is there as soon as its closing quote is.
    const std::size_t kept = (length >= 5) + (length >= 20) + (length >= 27);
    EXPECT_EQ(opened().readRecords().size(), kept) << length;
    EXPECT_EQ(opened().lastUndoMarker(), kept == 0 ? "" : kept == 3 ? "st2" : "st1") << length;
    opened().appendUndoRecord("mkd", u"/c", u"");
    const Texts records = opened().readRecords();
    ASSERT_EQ(records.size(), kept + 1) << length;
    EXPECT_EQ(records.back(), u"mkd002/c ");
  }
}

TEST_F(UndoJournalTest, ADamagedLineTakesNoOtherLineAlong) {
  write("\"st1\"\r\n\"mov002/a /b\r\nrubbish\r\n\r\n\"mkd002/c \"\r\n\x80\r\n\"mkd002/d \"\r\n");
  EXPECT_EQ(journal.readRecords(), (Texts{u"st1", u"mkd002/c ", u"mkd002/d "}));
  EXPECT_EQ(journal.lastUndoMarker(), "st1");
  write(Bytes("\0\0\xFF", 3));
  EXPECT_EQ(journal.readRecords(), Texts{});
  EXPECT_EQ(journal.lastUndoMarker(), "");
}

TEST_F(UndoJournalTest, TextsOfTagsMayHoldQuotesAndLineBreaks) {
  const Texts odd = {u"12\" mix", u"two\r\nlines", u"\"\r\n", u"ends\n", u"\xDC80\xDCFF"};
  for (const Text& text : odd) journal.appendUndoRecord("id3", text, text);
  const Texts records = journal.readRecords();
  ASSERT_EQ(records.size(), odd.size());
  for (std::size_t i = 0; i < odd.size(); ++i) {
    const auto data = parseUndoRecord(records[i]).data;
    ASSERT_TRUE(data);
    EXPECT_EQ(data->first, odd[i]);
    if (!odd[i].ends_with(u'\n')) {
      EXPECT_EQ(data->rest, odd[i]) << i;
    }
  }
}

TEST_F(UndoJournalTest, ACutTakesTheNewestRecordsAndLeavesTheRestAsItStands) {
  for (const char* kind : {"st1", "st2", "fst"}) journal.appendUndoMarker(kind);
  const Bytes before = bytes();
  Texts heard;
  std::uint64_t cut = journal.size();
  journal.visitFromNewest([&](const Text& record, std::uint64_t offset) {
    heard.push_back(record);
    cut = offset;
    return record != u"st2";
  });
  EXPECT_EQ(heard, (Texts{u"fst", u"st2"}));
  journal.cutAt(cut);
  EXPECT_EQ(bytes(), before.substr(0, 7));
  journal.appendUndoMarker("dst");
  EXPECT_EQ(journal.readRecords(), (Texts{u"st1", u"dst"}));
  journal.cutAt(1000);
  EXPECT_EQ(journal.size(), 14u) << "nothing stands there";
  journal.cutAt(0);
  EXPECT_EQ(bytes(), "");
  journal.remove();
  journal.remove();
  EXPECT_FALSE(journal.exists());
}

}  // namespace
}  // namespace velmora::journal
