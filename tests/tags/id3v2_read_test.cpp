#include <algorithm>
#include <random>

#include "core/code_page.h"
#include "platform/file_error.h"
#include "tags/id3v2.h"
#include "tags/id3v2_reader.h"
#include "tests/support/file_errors.h"
#include "tests/support/memory_file.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using test::Id3v2Maker;
using test::plain32;
using test::TagEncoding;

const test::SongTags tags{u"Harbour", u"Arvola", u"Northern Lights", u"1999", 7, u"(17)"};

struct ID3v2Read : TagFixture {
  cMP3ID3v2 tagOf(const Bytes& bytes) {
    test::MemoryFile file(bytes);
    SongBytes song(file);
    cMP3ID3v2 tag(files);
    tag.read(song);
    return tag;
  }
  Text titleOf(const Bytes& bytes) { return tagOf(bytes).Title(); }
};

std::optional<std::uint64_t> positionIn(const Bytes& bytes) {
  test::MemoryFile file(bytes);
  SongBytes song(file);
  return FindID3Position(song);
}

Bytes head(int version, std::uint32_t size) {
  return Bytes("ID3") + static_cast<char>(version) + Bytes(2, '\0') + plain32(size);
}

Bytes frame(BytesView name, BytesView body) {
  return Bytes(name) + plain32(static_cast<std::uint32_t>(body.size())) + Bytes(2, '\0') + Bytes(body);
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

TEST_F(ID3v2Read, TagsOfOtherWriters) {
  for (const int version : {2, 3, 4})
    for (const TagEncoding encoding : {TagEncoding::Latin1, TagEncoding::Utf16, TagEncoding::Utf8}) {
      const auto tag =
          tagOf(Id3v2Maker(version, encoding).values(tags).padding(100).bytes() + test::mpegFrames(2));
      EXPECT_TRUE(tag.HasID3v2Tag());
      EXPECT_EQ(tag.ID3v2TagVersion(), version);
      EXPECT_EQ(tag.TagVersion(), version);
      EXPECT_EQ(
          tag.Title() + u'|' + tag.Artist() + u'|' + tag.Album() + u'|' + tag.Year() + u'|' + tag.Track(),
          version == 4 ? u"Harbour|Arvola|Northern Lights||7" : u"Harbour|Arvola|Northern Lights|1999|7")
          << "version 4 writes its year elsewhere";
      EXPECT_EQ(tag.Genre(), 17);
      EXPECT_EQ(tag.OtherGenreName(), u"Rock");
      EXPECT_EQ(tag.Frame(1), "TIT2");
      EXPECT_EQ(tag.TagText("TIT2", 1), u"Harbour");
    }
}

TEST_F(ID3v2Read, WithoutATagAllIsEmptyAndAMissingFileThrows) {
  EXPECT_EQ(test::errorNumber([&] { cMP3ID3v2(files).setMP3File(folder.path(u"missing.mp3")); }),
            platform::FileError::fileNotFound);
  const auto tag = tagOf(test::mpegFrames(4));
  EXPECT_FALSE(tag.HasID3v2Tag());
  EXPECT_EQ(tag.FrameCount(), 0);
  EXPECT_EQ(tag.Title(), u"");
  EXPECT_EQ(tag.Genre(), 255);
  const auto later = tagOf(head(5, 100) + frame("TIT2", "Song") + Bytes(100, '\0'));
  EXPECT_TRUE(later.HasID3v2Tag());
  EXPECT_EQ(later.TagVersion(), 5);
  EXPECT_EQ(later.FrameCount(), 0);
}

TEST_F(ID3v2Read, ShortBodiesAreCleanedAndLongOnesAreNot) {
  EXPECT_EQ(
      titleOf(head(3, 2000) + frame("TIT2", Bytes("\0Sk\xE5l \x01\xFF\x7F~\r\n", 12)) + Bytes(500, '\0')),
      u"Skl ~");
  const Bytes body = Bytes(1, '\0') + Bytes(298, '\xE5');
  EXPECT_EQ(titleOf(head(3, 2000) + frame("TIT2", body) + Bytes(99, '\0')), u"");
  EXPECT_EQ(titleOf(head(3, 2000) + frame("TIT2", body + "!") + Bytes(99, '\0')),
            core::fromCodePage(body + "!"));
}

TEST_F(ID3v2Read, EachPropertyTakesItsFrame) {
  const auto tag = tagOf(head(3, 5000) + frame("WOAR", "a") + frame("WCOM", "b") + frame("WOAF", "c") +
                         frame("TCOP", "d") + frame("TCOM", "e") + frame("TOPE", "f") + frame("WXXX", "g") +
                         frame("PCNT", "h") + frame("TENC", "i") + frame("USLT", "j") + frame("XYZW", "k") +
                         frame("TIT2", "first") + frame("TIT2", "second") + Bytes(10, '\0'));
  EXPECT_EQ(tag.ArtistURL() + tag.BuyURL() + tag.AudioURL() + tag.Copyright() + tag.Composer() +
                tag.OriginalArtist() + tag.LinkTo() + tag.PlayCounter() + tag.EncodedBy() + tag.Lyrics(),
            u"abcdefghij");
  EXPECT_EQ(tag.TagText("XYZW", 1), u"k");
  EXPECT_EQ(tag.Title(), u"second") << "a later frame replaces the value";
  EXPECT_EQ(tag.TagsInFrame("TIT2"), 2);
  EXPECT_EQ(tag.TagText("TIT2", 1), u"first");
  EXPECT_EQ(tag.FrameCount(), 12);
}

TEST_F(ID3v2Read, CommentsAreJoined) {
  const auto tag = tagOf(Id3v2Maker().comment(u"Hello").comment(u"again").padding(50).bytes());
  EXPECT_EQ(tag.Comment(), u"engHello" + Text(1, u'\0') + u"\r\nengagain");
}

TEST_F(ID3v2Read, Genres) {
  const auto genre = [this](const Text& text) {
    const auto tag = tagOf(Id3v2Maker().text("TCON", text).padding(50).bytes());
    return std::pair<int, Text>(tag.Genre(), tag.OtherGenreName());
  };
  const std::tuple<TextView, int, TextView> cases[] = {
      {u"(17)", 17, u"Rock"},  {u"(17)Rock and Roll", 17, u"Rock and Roll"},
      {u"(17)R", 17, u"Rock"}, {u"(17)RR", 17, u"RR"},
      {u"Rock", 255, u"Rock"}, {u"(300)", 255, u"(300)"},
      {u"(255)", 255, u""},    {u"(0)", 0, u"Blues"},
      {u"(RX)", 255, u"(RX)"}, {u"()", 255, u"()"},
      {u")17(", 255, u")17("}, {u"Live (17", 255, u"Live (17"}};
  for (const auto& [text, code, name] : cases) EXPECT_EQ(genre(Text(text)), std::pair(code, Text(name)));
}

TEST_F(ID3v2Read, Version2NamesAreTranslatedOrLost) {
  const auto tag = tagOf(Id3v2Maker(2)
                             .values(tags)
                             .text("TEN", u"enc")
                             .comment(u"c")
                             .text("TCM", u"x")
                             .text("TOA", u"y")
                             .padding(60)
                             .bytes());
  EXPECT_EQ(tag.EncodedBy(), u"enc");
  EXPECT_EQ(tag.Comment(), u"engc");
  EXPECT_EQ(tag.TagsInFrame(""), 2) << "names without a version 3 form share the empty one";
  EXPECT_EQ(tag.TagText("", 2), u"y");
}

TEST_F(ID3v2Read, TheFrameLoopEndsByItsOwnArithmetic) {
  // Each frame counts 16 more than its body, so these two count 20 and 40.
  const Bytes two = frame("TALB", "abcd") + frame("TIT2", "Song") + Bytes(100, '\0');
  EXPECT_EQ(titleOf(head(3, 40) + two), u"Song");
  EXPECT_EQ(titleOf(head(3, 39) + two), u"");
  // The position behind the first frame is 24 and is held against the size alone.
  EXPECT_EQ(titleOf(Bytes(17, 'x') + head(3, 40) + two), u"") << "41 is behind 40";
  EXPECT_EQ(titleOf(Bytes(16, 'x') + head(3, 40) + two), u"Song");
  // Version 2 counts 9.
  const Bytes shortTwo = "TAL" + plain32(4).substr(1) + "abcd" + "TT2" + plain32(4).substr(1) + "Song";
  EXPECT_EQ(titleOf(head(2, 26) + shortTwo + Bytes(9, '\0')), u"Song");
  EXPECT_EQ(titleOf(head(2, 25) + shortTwo + Bytes(9, '\0')), u"");
}

TEST_F(ID3v2Read, FrameSizesAreSignedAndOneBeyondTheTagKeepsWhatCameBefore) {
  // 4 GiB less 4 is -4, and counts as 4.
  const Bytes negative = "TIT2" + plain32(0xFFFFFFFC) + Bytes(2, '\0') + "Song";
  EXPECT_EQ(titleOf(head(3, 2000) + negative + Bytes(500, '\0')), u"Song");
  const auto tag =
      tagOf(head(3, 500) + frame("TIT2", "Song") + frame("TPE1", Bytes(490, 'x')) + Bytes(200, '\0'));
  EXPECT_EQ(tag.Title(), u"Song");
  EXPECT_EQ(tag.Artist(), u"");
}

TEST_F(ID3v2Read, SizesArePlainNumbersInEveryVersion) {
  // 00 00 01 2C is 300, where a synchsafe reader sees 172.
  const Bytes album(200, 'x');
  for (const int version : {3, 4})
    EXPECT_EQ(titleOf(head(version, 300) + frame("TALB", album) + frame("TIT2", "Song") + Bytes(99, '\0')),
              u"Song");
}

/// Beyond a few identifiers the table looks them up by an index; it must hold what a plain list holds.
TEST(FrameTable, ManyIdentifiersComeAndGoInAnyOrder) {
  FrameTable frames;
  std::vector<Bytes> expected;
  std::mt19937 random(7);
  for (int step = 0; step < 2000; ++step) {
    const Bytes name = "T" + std::to_string(100 + random() % 60);
    if (std::erase(expected, name) > 0) {
      frames.remove(name);
    } else {
      frames.add(name, "body of " + name);
      expected.push_back(name);
    }
    EXPECT_EQ(frames.has(name), std::ranges::count(expected, name) > 0);
    ASSERT_EQ(frames.count(), static_cast<int>(expected.size()));
    for (int i = 1; i <= frames.count(); ++i) {
      ASSERT_EQ(frames.name(i), expected[static_cast<std::size_t>(i) - 1]);
      ASSERT_EQ(frames.body(frames.name(i), 1), "body of " + frames.name(i));
    }
  }
}

TEST(FrameTable, RemovingOneOfSeveralLosesAllOtherBodies) {
  FrameTable frames;
  for (const char* body : {"a", "b", "c"}) frames.add("COMM", body);
  frames.add("TIT2", "title");
  frames.removeTag("COMM", 2);
  EXPECT_EQ(frames.tags("COMM"), 2);
  EXPECT_EQ(frames.body("COMM", 2), "c") << "numbered anew";
  EXPECT_EQ(frames.tags("TIT2"), 1);
  EXPECT_THROW(frames.body("TIT2", 1), platform::FileError);
  frames.removeTag("TIT2", 1);
  EXPECT_EQ(frames.tags("TIT2"), 0);
  EXPECT_EQ(frames.count(), 2) << "the identifier stays";
}

}  // namespace
}  // namespace velmora::tags
