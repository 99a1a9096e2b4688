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

Bytes head(int version, std::uint32_t size) {
  return Bytes("ID3") + static_cast<char>(version) + Bytes(2, '\0') + plain32(size);
}

Bytes frame(BytesView name, BytesView body) {
  return Bytes(name) + plain32(static_cast<std::uint32_t>(body.size())) + Bytes(2, '\0') + Bytes(body);
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
          u"Harbour|Arvola|Northern Lights|1999|7");
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

TEST_F(ID3v2Read, TextIsReadByItsEncodingByte) {
  using namespace std::string_view_literals;
  const std::pair<BytesView, TextView> cases[] = {
      {"\0Sk\xE5l"sv, u"Skål"},
      {"\0\x8E\x80"sv, u"Ž€"},                           // the code page, marked as Latin-1
      {"\1\xFF\xFEK\x04>\x04\0\0"sv, u"ыо"},             // UTF-16 with its mark, and a terminator
      {"\1\xFE\xFF\4K\4>"sv, u"ыо"},                     // the other way round
      {"\1A\0b\0"sv, u"Ab"},                             // without a mark
      {"\2\0A\1~"sv, u"Až"},                             // big-endian
      {"\3\xC4\x8D\xF0\x9F\x8E\xB5"sv, u"č\U0001F3B5"},  // UTF-8
      {"\3\xE8 \x9A"sv, u"è š"},                         // marked so, and none
      {"\1\xFF\xFE\0\xD8x\0"sv, u"\uFFFDx"},             // half a character
      {"Song"sv, u"Song"},                               // no encoding byte at all
      {"\0\0\0Song\0"sv, u"Song"},                       // one more byte 0 at each pass of an earlier version
      {"\3One\0Two\0\0"sv, u"One;\u00A0Two"},            // several values
      {"\0a\r\nb\x01\x7F\tc"sv, u"a b c"}};
  for (const auto& [body, text] : cases)
    EXPECT_EQ(titleOf(head(3, 2000) + frame("TIT2", body) + Bytes(500, '\0')), text)
        << testing::PrintToString(body);
  const Bytes longBody = Bytes(1, '\0') + Bytes(500, '\xE5');
  EXPECT_EQ(titleOf(head(3, 2000) + frame("TIT2", longBody) + Bytes(99, '\0')), Text(500, u'å'));
}

TEST_F(ID3v2Read, TheYearIsTakenFromTheFrameOfItsVersion) {
  const Bytes year = frame("TYER", "2001"), time = frame("TDRC", "2004-03-12");
  for (const auto& [version, frames, shown] : {std::tuple<int, Bytes, TextView>{4, year + time, u"2004"},
                                               {4, time + year, u"2004"},
                                               {3, time + year, u"2001"},
                                               {3, year + time, u"2001"},
                                               {3, time, u"2004"},
                                               {4, year, u"2001"}})
    EXPECT_EQ(tagOf(head(version, 100) + frames + Bytes(100, '\0')).Year(), shown);
}

TEST_F(ID3v2Read, EachPropertyTakesItsFrame) {
  const auto tag =
      tagOf(head(3, 5000) + frame("WOAR", "a") + frame("WCOM", "b") + frame("WOAF", "c") +
            frame("TCOP", "d") + frame("TCOM", "e") + frame("TOPE", "f") + frame("WXXX", Bytes("\0x\0g", 4)) +
            frame("PCNT", plain32(9)) + frame("TENC", "i") + frame("USLT", Bytes("\0j", 2)) +
            frame("XYZW", "k") + frame("TIT2", "first") + frame("TIT2", "second") + Bytes(10, '\0'));
  EXPECT_EQ(tag.ArtistURL() + tag.BuyURL() + tag.AudioURL() + tag.Copyright() + tag.Composer() +
                tag.OriginalArtist() + tag.LinkTo() + tag.PlayCounter() + tag.EncodedBy() + tag.Lyrics(),
            u"abcdefg9ij");
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

TEST_F(ID3v2Read, Version2NamesAreTranslated) {
  const auto tag = tagOf(Id3v2Maker(2)
                             .values(tags)
                             .text("TEN", u"enc")
                             .comment(u"c")
                             .text("TCM", u"x")
                             .text("ABC", u"y")
                             .picture(100)
                             .padding(60)
                             .bytes());
  EXPECT_EQ(tag.EncodedBy() + u'|' + tag.Comment() + u'|' + tag.Composer(), u"enc|engc|x");
  EXPECT_EQ(tag.TagText("XABC", 1), Text(u"\0y", 2)) << "a name of its own stays apart";
  EXPECT_TRUE(tag.TagText("APIC", 1).starts_with(Text(u"\0image/jpeg\0\3\0", 14)));
}

TEST_F(ID3v2Read, FramesThatAreMarkedOrCodedInTheirOwnWay) {
  const auto marked = [](int version, BytesView flags, BytesView body) {
    return head(version, 200) + "TIT2" + plain32(static_cast<std::uint32_t>(body.size())) + Bytes(flags) +
           Bytes(body) + frame("TPE1", "Arvola") + Bytes(200, '\0');
  };
  using namespace std::string_view_literals;
  const std::tuple<int, BytesView, BytesView, TextView> cases[] = {
      {4, "\0\2"sv, "\1\xFF\0\xFE\x4B\4"sv, u"ы"},     // unsynchronised
      {4, "\0\1"sv, "\0\0\0\5\0Song"sv, u"Song"},      // with a data length
      {4, "\0\x41"sv, "\7\0\0\0\5\0Song"sv, u"Song"},  // of a group, too
      {3, "\0\x20"sv, "\7\0Song"sv, u"Song"},
      {4, "\0\x08"sv, "\0\0\0\5x"sv, u""},  // compressed
      {3, "\0\x80"sv, "\0\0\0\5x"sv, u""},
      {3, "\0\x40"sv, "\0Song"sv, u""}};  // encrypted
  for (const auto& [version, flags, body, title] : cases) {
    const auto tag = tagOf(marked(version, flags, body));
    EXPECT_EQ(tag.Title() + u'|' + tag.Artist(), Text(title) + u"|Arvola") << version << ' ' << int(flags[1]);
  }
}

TEST_F(ID3v2Read, TagsThatAreCodedAsAWhole) {
  const Bytes frames = frame("TIT2", Bytes("\1\xFF\xFE\xFF\0", 5)) + frame("TPE1", "Arvola");
  Bytes coded;
  for (const char byte : frames + Bytes(20, '\0'))
    (coded += byte) += byte == '\xFF' ? Bytes(1, '\0') : Bytes();
  const auto size = static_cast<std::uint32_t>(coded.size());
  const auto tag = tagOf(Bytes("ID3\3\0\x80", 6) + test::synchsafe32(size) + coded + test::mpegFrames(3));
  EXPECT_EQ(tag.Title() + u'|' + tag.Artist(), u"ÿ|Arvola");

  const Bytes three = plain32(6) + Bytes(6, '\0'), four = test::synchsafe32(6) + Bytes("\1\0", 2);
  for (const auto& [version, extra] : {std::pair(3, three), std::pair(4, four)}) {
    const Bytes all = extra + frame("TIT2", "Song");
    EXPECT_EQ(titleOf(Bytes("ID3") + static_cast<char>(version) + Bytes("\0\x40", 2) +
                      test::synchsafe32(static_cast<std::uint32_t>(all.size())) + all + test::mpegFrames(3)),
              u"Song")
        << "an extended header is passed over";
  }
}

TEST_F(ID3v2Read, Version4SizesHaveSevenBitsUnlessTheirWriterDidNotKnow) {
  const Bytes album(300, 'x');
  const auto tagWith = [&](const Bytes& size) {
    const Bytes frames = "TALB" + size + Bytes(2, '\0') + album + frame("TIT2", "Song");
    return Bytes("ID3\4\0\0", 6) + test::synchsafe32(static_cast<std::uint32_t>(frames.size())) + frames +
           test::mpegFrames(3);
  };
  EXPECT_EQ(titleOf(tagWith(test::synchsafe32(300))), u"Song");
  EXPECT_EQ(titleOf(tagWith(plain32(300))), u"Song");
}

TEST_F(ID3v2Read, AFrameBeyondTheTagKeepsWhatCameBefore) {
  // 4 GiB less 4 is -4, and counts as 4.
  const Bytes negative = "TIT2" + plain32(0xFFFFFFFC) + Bytes(2, '\0') + "Song";
  EXPECT_EQ(titleOf(head(3, 2000) + negative + Bytes(500, '\0')), u"Song");
  const auto tag = tagOf(Bytes("ID3\3\0\0", 6) + test::synchsafe32(522) + frame("TIT2", "Song") + "TPE1" +
                         plain32(100'000) + Bytes(500, 'x') + test::mpegFrames(3));
  EXPECT_EQ(tag.Title(), u"Song");
  EXPECT_EQ(tag.Artist(), u"");
}

TEST_F(ID3v2Read, APlainSizeCountsWhereFramesPassThePublishedOne) {
  // 00 00 01 2C is 300, where a reader of the published form sees 172.
  const Bytes album(200, 'x');
  for (const int version : {3, 4})
    EXPECT_EQ(titleOf(head(version, 300) + frame("TALB", album) + frame("TIT2", "Song") + Bytes(99, '\0')),
              u"Song");
}

TEST(FrameTable, IdentifiersInTheOrderOfTheirFirstFrame) {
  FrameTable frames;
  for (const auto& [name, body] : {std::pair("COMM", "a"), {"TIT2", "title"}, {"COMM", "b"}, {"COMM", "c"}})
    frames.add({name, 0, body});
  EXPECT_EQ(frames.count(), 2);
  EXPECT_EQ(frames.name(1) + frames.name(2) + frames.name(3), "COMMTIT2");
  frames.removeTag("COMM", 2);
  EXPECT_EQ(frames.frame("COMM", 2).body, "c") << "numbered anew";
  EXPECT_EQ(frames.frame("TIT2", 1).body, "title");
  EXPECT_TRUE(frames.remove("COMM"));
  EXPECT_FALSE(frames.remove("COMM"));
  EXPECT_EQ(frames.name(1), "TIT2");
  EXPECT_THROW(frames.frame("COMM", 1), platform::FileError);
}

}  // namespace
}  // namespace velmora::tags
