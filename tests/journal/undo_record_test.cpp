#include "journal/undo_record.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "journal/undo_journal.h"

namespace velmora::journal {
namespace {

Text record(TextView kind, TextView first, TextView rest) {
  return Text(kind) + lengthPrefixed(first) + u' ' + Text(rest);
}

TEST(UndoRecord, DataRecordsGiveBackBothPartsAndMarkersHaveNone) {
  EXPECT_EQ(parseUndoRecord(u"st1").kind, u"st1");
  EXPECT_FALSE(parseUndoRecord(u"st1").data);
  for (const auto& [first, rest] : std::initializer_list<std::pair<TextView, TextView>>{
           {u"/music/a b.mp3", u"004 12"}, {u" 12", u""}, {u"", u"rest"}, {u"", u""}}) {
    const Text line = record(u"mov", first, rest);
    const UndoRecord parsed = parseUndoRecord(line);
    EXPECT_EQ(parsed.kind, u"mov");
    ASSERT_TRUE(parsed.data);
    EXPECT_EQ(parsed.data->first, first);
    EXPECT_EQ(parsed.data->rest, rest);
  }
}

TEST(UndoRecord, ADamagedLineKeepsItsKindAndNothingElse) {
  const Text whole = record(u"mov", u"/a.mp3", u"");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const UndoRecord torn = parseUndoRecord(TextView(whole).substr(0, length));
    EXPECT_FALSE(torn.data) << length;
    EXPECT_EQ(torn.kind, TextView(u"mov").substr(0, length)) << length;
  }
  for (const TextView damaged : {u"movx06/a.mp3 ", u"mov 06/a.mp3 ", u"mov005/a.mp3 ", u"mov999/a.mp3 "})
    EXPECT_FALSE(parseUndoRecord(damaged).data) << core::toBytes(damaged);
}

TEST(UndoRecord, ALongSelectionOfAnOlderVersionIsRead) {
  const Text snapshot(12345, u' ');
  const Text selection = u"bi112345" + snapshot + u" ";
  ASSERT_TRUE(parseUndoRecord(selection).data);
  EXPECT_EQ(parseUndoRecord(selection).data->first, snapshot);
}

TEST(FieldReader, TakesFieldsUntilOneDoesNotFit) {
  FieldReader fields(u"003abc000002de");
  EXPECT_EQ(fields.next(), u"abc");
  EXPECT_EQ(fields.next(), u"");
  EXPECT_EQ(fields.next(), u"de");
  EXPECT_TRUE(fields.left().empty());
  EXPECT_FALSE(fields.next());
  FieldReader torn(u"009abc");
  EXPECT_FALSE(torn.next());
  EXPECT_FALSE(torn.next());
}

TEST(UndoRecord, RowsCountFromOne) {
  EXPECT_EQ(parseRow(u" 12"), 12);
  EXPECT_EQ(parseRow(u"7"), 7);
  for (const TextView bad : {u"", u" ", u" 0", u"-1", u"1x", u" 99999999999"}) EXPECT_FALSE(parseRow(bad));
}

TEST(UndoRecord, RenamePayloadComesBack) {
  core::TrackTable table;
  table.appendPath(u"/music/Arvola - Harbour.mp3");
  table.resizeColumns();
  table.track(1).crtapos = u" 8";
  const Text old = u"002 1027/music/Arvola - Harbour.mp3002 8";
  ASSERT_TRUE(parseRenamePayload(old)) << "of an older version";
  const Text payload = renamePayload(table, 1, u"7.5");
  EXPECT_EQ(payload, old + u"0037.5");
  const auto parsed = parseRenamePayload(payload);
  ASSERT_TRUE(parsed);
  EXPECT_EQ(parsed->row, 1);
  EXPECT_EQ(parsed->path, u"/music/Arvola - Harbour.mp3");
  EXPECT_EQ(parsed->crtapos, u" 8");
  EXPECT_EQ(parsed->identity, u"7.5");
  for (std::size_t length = 0; length < payload.size(); ++length)
    EXPECT_EQ(parseRenamePayload(TextView(payload).substr(0, length)).has_value(), length == old.size());
  EXPECT_FALSE(parseRenamePayload(payload + u"x"));
}

TEST(UndoRecord, DeletedFileComesBack) {
  const Text old = u"005 4711012/music/a.mp3";
  ASSERT_TRUE(parseDeletedFile(old)) << "of an older version";
  const Text text = deletedFile(4711, u"/music/a.mp3", u"7.5");
  EXPECT_EQ(text, old + u"0037.5");
  const auto parsed = parseDeletedFile(text);
  ASSERT_TRUE(parsed);
  EXPECT_EQ(parsed->size, 4711U);
  EXPECT_EQ(parsed->path, u"/music/a.mp3");
  for (const TextView bad : {u"", u"005 4711", u"003abc012/music/a.mp3", u"005 4711000"})
    EXPECT_FALSE(parseDeletedFile(bad));
}

TEST(UndoRecord, MovedFileComesBack) {
  const auto parsed = parseMovedFile(movedFile(u"/base/a.mp3", u"7.5", 12));
  ASSERT_TRUE(parsed);
  EXPECT_EQ(parsed->path, u"/base/a.mp3");
  EXPECT_EQ(parsed->identity, u"7.5");
  EXPECT_EQ(parsed->size, 12u);
  const auto old = parseMovedFile(u"/base/a 1.mp3");
  ASSERT_TRUE(old);
  EXPECT_EQ(old->path, u"/base/a 1.mp3");
  EXPECT_FALSE(old->size);
  for (const TextView bad : {u"", u"003/ab", u"003/ab000", u"#1:/000003 12x"})
    EXPECT_FALSE(parseMovedFile(bad));
}

TEST(UndoRecord, RowSnapshotComesBack) {
  core::TrackTable table;
  table.appendPath(u"/music/a - b.mp3");
  table.appendPath(u"/base/x.mp3");
  table.resizeColumns();
  table.setBrojfajlova(1);
  core::Track& track = table.track(1);
  track.crtapos = u" 3";
  track.procitan = true;
  track.imaid3v2 = true;
  track.imaid3v1 = false;
  track.pevacID3v2 = u"Artist";
  track.vrstaid3v2 = u"Opera";
  const Text text = rowSnapshot(table, 1);
  EXPECT_EQ(text, u"101" + Text(18, u'0') + u"006Artist" + Text(12, u'0') +
                      u"005Opera016/music/a - b.mp3002 3002 1");
  const auto parsed = parseRowSnapshot(text);
  ASSERT_TRUE(parsed);
  EXPECT_TRUE(parsed->procitan && !parsed->imaid3v1 && parsed->imaid3v2);
  for (std::size_t i = 0; i < parsed->tags.size(); ++i)
    EXPECT_EQ(parsed->tags[i], (track.*snapshotColumns()[i]).text()) << i;
  EXPECT_EQ(parsed->path, u"/music/a - b.mp3");
  EXPECT_EQ(parsed->crtapos, u" 3");
  EXPECT_EQ(parsed->brojfajlova, 1);
  for (std::size_t length = 0; length < text.size(); ++length)
    EXPECT_FALSE(parseRowSnapshot(TextView(text).substr(0, length)));
}

}  // namespace
}  // namespace velmora::journal
