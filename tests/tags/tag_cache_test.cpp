#include "tags/tag_cache.h"

#include <sys/stat.h>

#include "core/text.h"
#include "journal/undo_record.h"
#include "tests/support/memory_file.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using core::Element;
using test::Id3v2Maker;

struct Cache : TagFixture {
  /// Adds a row for a file of these bytes.
  int add(const Bytes& bytes) {
    table.appendPath(
        folder.write(u"song " + Text(1, static_cast<char16_t>(u'a' + table.rows())) + u".mp3", bytes));
    table.resizeColumns();
    return table.rows();
  }
  bool read(int row) { return cache.read(table.path(row), row); }

  const Bytes audio = test::mpegFrames(30);
  const test::SongTags tags{u"Harbour", u"Arvola", u"Lights", u"1999", 7, u"(17)"};
  TagCache cache{table, files};
};

TEST_F(Cache, FillsTheColumnsOfBothTags) {
  const int row = add(Id3v2Maker().values(tags).padding(100).bytes() + audio +
                      test::id3v1Tag({u"Harbour ", u"Ar", u"Li", u"2001", 8, {}}, 103));
  EXPECT_TRUE(read(row));
  const core::Track& track = table.track(row);
  EXPECT_TRUE(track.procitan.isTrue() && track.imaid3v1.isTrue() && track.imaid3v2.isTrue());
  const TextView expected[] = {u"Ar",     u"Harbour ", u"Li",     u"2001", u" 8", u"Opera",
                               u"Arvola", u"Harbour",  u"Lights", u"1999", u"7",  u"Rock"};
  for (std::size_t i = 0; i < std::size(expected); ++i)
    EXPECT_EQ(track.*journal::snapshotColumns()[i], Element(expected[i])) << i;
}

TEST_F(Cache, AMissingTagIsFalseAndLeavesItsOtherColumns) {
  const int zero = add(Id3v2Maker().text("TRCK", u"0").padding(50).bytes() + audio + test::id3v1Tag({}));
  EXPECT_TRUE(read(zero));
  EXPECT_EQ(table.track(zero).brojtrakeid3v1, Element(u"")) << "no track number";
  EXPECT_EQ(table.track(zero).brojtrakeid3v2, Element(u""));
  const int row = add(audio);
  table.track(row).pesmaid3v1 = u"old";
  table.track(row).pesmaid3v2 = u"old";
  EXPECT_TRUE(read(row));
  EXPECT_EQ(table.track(row).imaid3v1, Element(false));
  EXPECT_EQ(table.track(row).imaid3v2, Element(false));
  EXPECT_EQ(table.track(row).pesmaid3v1, Element(u"old"));
  EXPECT_EQ(table.track(row).pesmaid3v2, Element(u"old"));
}

TEST_F(Cache, ARowIsReadOnce) {
  const int row = add(audio);
  EXPECT_TRUE(read(row));
  folder.write(u"song a.mp3", audio + test::id3v1Tag(tags));
  EXPECT_TRUE(read(row));
  EXPECT_EQ(table.track(row).imaid3v1, Element(false));
  table.track(row).procitan = false;
  EXPECT_TRUE(read(row));
  EXPECT_EQ(table.track(row).imaid3v1, Element(true));
}

TEST_F(Cache, WhatCannotBeReadLeavesTheColumnsAsTheyWere) {
  const int empty = add("");
  const int missing = add(audio);
  files.remove(table.path(missing));
  const int pipe = add(audio);
  files.remove(table.path(pipe));
  ASSERT_EQ(::mkfifo(core::toBytes(table.path(pipe)).c_str(), 0600), 0);
  for (const int row : {empty, missing, pipe}) {
    EXPECT_FALSE(read(row));
    EXPECT_TRUE(table.track(row).procitan.isNothing());
    EXPECT_TRUE(table.track(row).imaid3v1.isNothing());
  }
  EXPECT_FALSE(cache.read(folder.path(u"missing.mp3"), 99)) << "a row that is not there does no harm";
}

TEST_F(Cache, ReadsLittleOfAFile) {
  table.appendPath(u"song.mp3");
  const auto costOf = [this](const Bytes& content) {
    table.track(1).procitan = {};
    test::MemoryFile file(content);
    SongBytes bytes(file);
    EXPECT_TRUE(cache.read(bytes, 1));
    return std::pair(file.reads, file.bytesRead);
  };
  const Bytes last = test::id3v1Tag(tags);
  const std::pair usual(2, std::uint64_t{4096 + 128});
  EXPECT_EQ(costOf(audio + last), usual);
  EXPECT_EQ(costOf(Id3v2Maker().values(tags).padding(1000).bytes() + audio + last), usual);
  EXPECT_EQ(costOf("short" + last), std::pair(1, std::uint64_t{133})) << "a short file comes in one piece";
  // A picture is stepped over.
  const auto [reads, read] = costOf(Id3v2Maker().values(tags).picture(500'000).bytes() + audio + last);
  EXPECT_LE(reads, 4);
  EXPECT_LT(read, 20'000U);
  // Where no audio starts, all is searched, in large steps.
  EXPECT_LE(costOf(Bytes(1'000'000, 'x')).first, 24);
}

}  // namespace
}  // namespace velmora::tags
