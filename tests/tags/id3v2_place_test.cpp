#include "tags/id3v2_place.h"

#include <gtest/gtest.h>

#include "tests/support/memory_file.h"
#include "tests/support/mp3_maker.h"

namespace velmora::tags {
namespace {

using test::Id3v2Maker;
using test::plain32;
using test::synchsafe32;

std::optional<std::uint64_t> positionIn(const Bytes& bytes) {
  test::MemoryFile file(bytes);
  SongBytes song(file);
  return FindID3Position(song);
}

TEST(FindID3Position, TheMarkerIsFoundAnywhereAheadOfTheAudio) {
  const Bytes fill(20'000, '\x11');
  EXPECT_EQ(positionIn("ID3\x03...."), 3U);
  EXPECT_EQ(positionIn(fill + "ID3\x03...."), 20'003U);
  EXPECT_FALSE(positionIn(fill));
  EXPECT_FALSE(positionIn(""));
  for (std::size_t start = 4090; start < 4100; ++start)
    EXPECT_EQ(positionIn(fill.substr(0, start) + "ID3" + fill), start + 3) << "across a block border";
  for (std::size_t start = 8180; start < 8200; ++start)
    EXPECT_EQ(positionIn(fill.substr(0, start) + "ID3" + fill), start + 3);
}

TEST(FindID3Position, TheAudioEndsTheSearchButNotInsideItsBlock) {
  const Bytes fill(5000, '\x11');
  EXPECT_EQ(positionIn("\xFF\xFB" + fill.substr(0, 4000) + "ID3\x03...."), 4005U);
  EXPECT_FALSE(positionIn("\xFF\xFB" + fill + "ID3\x03...."));
  for (const char* other : {"\xFF\xFA", "\xFF\xF3", "\xFB\xFF"})
    EXPECT_EQ(positionIn(other + fill + "ID3\x03...."), 5005U) << "only this pair counts as audio";
}

TEST(FindID3Position, TheLastByteOfTheFileIsNotSearched) {
  EXPECT_FALSE(positionIn("xxID3"));
  EXPECT_EQ(positionIn("xxID3x"), 5U);
  EXPECT_FALSE(positionIn(Bytes(4093, 'x') + "ID3"));
  EXPECT_FALSE(positionIn(Bytes(6000, 'x') + "ID3"));
}

/// Where the tag of these bytes ends; nothing without one.
std::optional<std::uint64_t> endIn(const Bytes& bytes) {
  test::MemoryFile file(bytes);
  SongBytes song(file);
  const auto tag = findTag(song);
  if (!tag) return {};
  return tagEnd(song, *tag);
}

TEST(TagEnd, IsWhereTheMusicBegins) {
  const Bytes audio = test::mpegFrames(20), ape = "APETAGEX" + Bytes(100, 'a');
  const Bytes padded = Id3v2Maker().text("TIT2", u"Song").padding(700).bytes();
  const Bytes full = Id3v2Maker(4).values({.title = u"Song"}).picture(60'000).bytes();
  for (const Bytes& tag : {padded, full, Id3v2Maker(2).picture(3000).bytes()})
    for (const Bytes& song : {audio, ape, Bytes(), test::id3v1Tag({}), Bytes(300, 'x'),
                              "\xFF\xF3\x40\xC4" + Bytes(90, 'x'), padded + audio, Bytes(5000, '\0') + audio})
      EXPECT_EQ(endIn(tag + song), tag.size());
}

TEST(TagEnd, APlainSizeCountsWhereThePublishedOneLeadsNowhere) {
  // As this program makes them: the size counts the header.
  const auto own = [](std::size_t size, const Bytes& frames) {
    Bytes tag = Bytes("ID3\3\0\0", 6) + plain32(static_cast<std::uint32_t>(size)) + frames;
    tag.resize(size, '\0');
    return tag;
  };
  const Bytes song = "TIT2" + plain32(5) + Bytes(3, '\0') + "Song";
  const Bytes large = "TALB" + plain32(1500) + Bytes(3, '\0') + Bytes(1499, 'x');
  const Bytes audio = test::mpegFrames(20);
  for (const std::size_t size : {2048U, 4096U, 32'768U, 65'536U})
    for (const Bytes& frames : {song, large, song + large})
      for (const Bytes& music :
           {audio, Bytes(400, 'x'), "\xFF\xF3\x40\xC4" + Bytes(90, 'x'), Bytes(100, '\0')})
        EXPECT_EQ(endIn(own(size, frames) + music), size);
  EXPECT_EQ(endIn(own(2048, song).replace(1100, 5, "stale") + audio), 2048U) << "left from a longer tag";
  // Of other writers that did not know how: it leaves the header out.
  const Bytes other = Id3v2Maker().text("TIT2", u"Song").padding(500).plainBytes();
  EXPECT_EQ(endIn(other + audio), other.size());
}

TEST(TagEnd, ASizeThatLiesIsHeldToWhatTheFileTells) {
  const Bytes audio = test::mpegFrames(20);
  const Bytes start = Id3v2Maker().text("TIT2", u"Song").padding(100'000).bytes().substr(0, 500);
  EXPECT_EQ(endIn(start + audio), 500U);
  EXPECT_EQ(endIn(start + "xx" + audio), 500U);
  const Bytes frame = Id3v2Maker().text("TIT2", u"Song").bytes();
  EXPECT_EQ(endIn(Bytes(frame).replace(6, 4, synchsafe32(90'000)) + audio), frame.size());
  EXPECT_EQ(endIn("ID3\3"), std::nullopt);
}

TEST(TagEnd, AFooterBelongsToTheTagWhereItStands) {
  const Bytes audio = test::mpegFrames(20);
  Bytes tag = Id3v2Maker(4).text("TIT2", u"Song").bytes();
  tag[5] = '\x10';
  EXPECT_EQ(endIn(tag + audio), tag.size()) << "the mark is set, and there is none";
  EXPECT_EQ(endIn(tag + "3DI" + tag.substr(3, 7) + audio), tag.size() + 10);
}

TEST(FindTag, LettersInTheMusicAreNoTag) {
  const Bytes tag = Id3v2Maker().text("TIT2", u"Song").padding(50).bytes(), audio = test::mpegFrames(20);
  EXPECT_EQ(endIn(Bytes(300, '\0') + tag + audio), 300 + tag.size()) << "behind what somebody left";
  EXPECT_FALSE(endIn(Bytes(300, 'x') + "ID3 is what they call it" + audio));
  EXPECT_FALSE(endIn("\xFF\xF3\x40\xC4" + Bytes(300, 'x') + "ID3\3\0\0\0\0\x02\x01xxxxxxxxxxxxxxxx" + audio));
  EXPECT_TRUE(endIn("ID3\7\0\0\0\0\x02\x01" + Bytes(500, 'x') + audio)) << "a version that we do not know";
}

}  // namespace
}  // namespace velmora::tags
