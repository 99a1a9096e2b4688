#include <set>
#include <sys/stat.h>
#include <unistd.h>

#include "core/text.h"
#include "tags/id3v2.h"
#include "tags/id3v2_writer.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using platform::Answer;
using test::Id3v2Maker;
using test::plain32;
using test::TagEncoding;

Bytes head(const Bytes& size) {
  return Bytes("ID3\x03\0\0", 6) + size;
}
Bytes head(std::uint32_t size) {
  return head(plain32(size));
}

Bytes frame(BytesView name, BytesView body) {
  return Bytes(name) + plain32(static_cast<std::uint32_t>(body.size() + 1)) + Bytes(3, '\0') + Bytes(body);
}

struct ID3v2Write : TagFixture {
  cMP3ID3v2 tagOf(const Bytes& bytes) {
    cMP3ID3v2 tag(files);
    tag.setMP3File(folder.write(u"song.mp3", bytes));
    return tag;
  }
  Bytes updated(cMP3ID3v2& tag) {
    EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
    EXPECT_EQ(files.list(folder.path()).entries.size(), 1U) << "nothing is left beside the song";
    return folder.read(u"song.mp3");
  }

  /// The song with this title, written over what it was.
  Bytes titled(const Bytes& old, const Text& title = u"Song") {
    auto tag = tagOf(old);
    tag.setTitle(title);
    return updated(tag);
  }

  /// Names and texts of the frames, sorted, less the title, with `title` in its place.
  std::multiset<Text> framesOf(const Bytes& bytes, const Text& title) {
    std::multiset<Text> all = framesOf(bytes);
    std::erase_if(all, [](const Text& each) { return each.starts_with(u"TIT2"); });
    if (!title.empty()) all.insert(u"TIT2" + title);
    return all;
  }
  std::multiset<Text> framesOf(const Bytes& bytes) {
    const auto tag = tagOf(bytes);
    std::multiset<Text> all;
    for (int i = 1; i <= tag.FrameCount(); ++i)
      for (int each = 1; each <= tag.TagsInFrame(tag.Frame(i)); ++each)
        all.insert(core::fromBytes(tag.Frame(i)) + tag.TagText(tag.Frame(i), each));
    return all;
  }

  const Bytes audio = test::mpegFrames(8);
  const Bytes songFrame = frame("TIT2", "Song");
};

TEST_F(ID3v2Write, AFirstTagTakesAMultipleOf2048Bytes) {
  const Bytes now = titled(audio);
  EXPECT_EQ(now, head(2048) + songFrame + Bytes(2048 - 25, '\0') + audio);
  EXPECT_EQ(now.substr(6, 4), Bytes("\0\0\x08\0", 4));
  for (const auto& [total, size] :
       {std::pair{1034, 2048}, {2047, 2048}, {2048, 4096}, {2049, 4096}, {4096, 6144}}) {
    const Bytes grown = titled(audio, Text(static_cast<std::size_t>(total) - 25, u'x'));
    EXPECT_EQ(grown.substr(static_cast<std::size_t>(size)), audio);
    // The plain size as long as readers of the published form, who see half of it, find all frames.
    const auto number = static_cast<std::uint32_t>(size);
    EXPECT_EQ(grown.substr(6, 4),
              total - 4 <= 10 + size / 2 ? plain32(number) : test::synchsafe32(number - 10));
  }
}

TEST_F(ID3v2Write, APlainSizeIsNoneForSoundThatMustFollowAtOnce) {
  for (const Bytes& song : {Bytes(audio).replace(36, 4, "Xing"), Bytes(audio).replace(21, 4, "Info"),
                            "fLaC" + audio, Bytes(100, '\0') + audio})
    EXPECT_EQ(titled(song).substr(0, 2048),
              head(test::synchsafe32(2038)) + songFrame + Bytes(2048 - 25, '\0'));
}

TEST_F(ID3v2Write, OtherFramesGoBackByteForByte) {
  using namespace std::string_view_literals;
  const Bytes music = audio + test::id3v1Tag({});
  for (const int version : {2, 3, 4})
    for (const std::size_t padding : {0U, 600U}) {
      SCOPED_TRACE(version);
      Id3v2Maker maker(version, version == 4 ? TagEncoding::Utf8 : TagEncoding::Utf16);
      maker.values({u"Žal", u"Arvola", u"Lights", u"1999", 7, u"Rock"}).comment(u"ыо").picture(20'000);
      if (version > 2)
        maker.frame("TXXX", "\0gain\0-3 dB"sv).frame("COMM", "\0deux\0y"sv).frame("PRIV", "p\0\xFF\0\xE0"sv);
      const Bytes old = maker.padding(padding).bytes() + music;
      for (const Text& title : {Text(u"A"), Text(u"жук"), Text(3000, u'x'), Text()}) {
        const Bytes now = titled(old, title);
        EXPECT_TRUE(now.ends_with(music));
        EXPECT_EQ(framesOf(now), framesOf(old, title)) << title.size();
        EXPECT_EQ(now[3], version == 4 ? '\4' : '\3');
        EXPECT_EQ(tagOf(now).Title(), title);
        if (padding > 0 && title.size() < 100) {
          // The media type of a picture takes more room than the three letters of version 2.
          EXPECT_TRUE(version == 2 || now.size() == old.size()) << "room was there";
        }
        folder.write(u"song.mp3", now);
        EXPECT_EQ(titled(now, title), now) << "nothing to change";
      }
      EXPECT_EQ(titled(old, u"Žal"), old);
    }
}

TEST_F(ID3v2Write, SizesAreThoseOfTheVersion) {
  for (const int version : {3, 4}) {
    const Bytes now = titled(Id3v2Maker(version).text("TALB", Text(300, u'a')).bytes() + audio);
    const auto size = [version](std::uint32_t bytes) {
      return version == 4 ? test::synchsafe32(bytes) : plain32(bytes);
    };
    EXPECT_EQ(now.substr(6, 4), test::synchsafe32(2048 - 10));
    EXPECT_EQ(now.substr(10, 8), "TALB" + size(301));
  }
}

TEST_F(ID3v2Write, TextTakesTheNarrowestEncodingOfTheVersion) {
  using namespace std::string_view_literals;
  const auto body = [this](int version, const Text& title) {
    const Bytes now = titled(Id3v2Maker(version).padding(200).bytes() + audio, title);
    return now.substr(20, static_cast<unsigned char>(now[17]));
  };
  for (const int version : {3, 4}) EXPECT_EQ(body(version, u"Skål"), "\0Sk\xE5l"sv);
  EXPECT_EQ(body(3, u"Žal"), "\1\xFF\xFE\x7D\1a\0l\0"sv) << "a letter of the code page that Latin-1 has not";
  EXPECT_EQ(body(4, u"Žal"),
            "\3\xC5\xBD"
            "al"sv);
  EXPECT_EQ(body(4, u"One;\u00A0Two"), "\0One\0Two"sv) << "values that stood apart do so again";
}

TEST_F(ID3v2Write, SettersReplaceTheirFrameAndPutItLast) {
  auto tag = tagOf(Id3v2Maker().text("TIT2", u"a").text("TIT2", u"b").text("TPE1", u"c").padding(50).bytes());
  tag.setTitle(u"Tune");
  EXPECT_EQ(tag.Frame(1), "TPE1");
  EXPECT_EQ(tag.Frame(2), "TIT2");
  EXPECT_EQ(tag.TagsInFrame("TIT2"), 1);
  EXPECT_EQ(tag.Title(), u"Tune");

  tag.AddTag("COMM", Text(u"eng\0other", 9));
  tag.setComment(u"live");
  tag.setLinkTo(u"page");
  tag.setLyrics(u"la");
  EXPECT_EQ(tag.TagText("COMM", 1), Text(u"eng\0other", 9)) << "of another language";
  EXPECT_EQ(tag.TagText("COMM", 2), Text(u"\0nt\0live", 8));
  EXPECT_EQ(tag.TagText("WXXX", 1), Text(u"\0page", 5));
  EXPECT_EQ(tag.TagText("USLT", 1), Text(u"eng\0la", 6));

  tag.setGenre(103);
  EXPECT_EQ(tag.TagText("TCON", 1), u"(103)");
  tag.setOtherGenreName(u"Turbo");
  EXPECT_EQ(tag.TagText("TCON", 1), u"Turbo");
  EXPECT_EQ(tag.Genre(), 103);
  EXPECT_EQ(tag.TagsInFrame("TCON"), 1);
}

TEST_F(ID3v2Write, NothingIsInvented) {
  auto tag =
      tagOf(Id3v2Maker().text("TIT2", u"Song").text("TCON", u"Rock").text("TPE1", u"x").padding(50).bytes());
  tag.setYear({});
  tag.setTrack(u"0");
  tag.setGenre(17);
  tag.setTitle(u"Song");
  EXPECT_FALSE(tag.changed());
  tag.setGenre(255);
  tag.setArtist({});
  EXPECT_TRUE(tag.changed());
  EXPECT_EQ(tag.FrameCount(), 1);
  auto none = tagOf(audio);
  none.setGenre(255);
  none.setTitle({});
  EXPECT_EQ(updated(none), audio);
}

TEST_F(ID3v2Write, TheYearGoesWhereItStands) {
  const auto years = [this](const Bytes& old) {
    auto tag = tagOf(old + audio);
    tag.setYear(u"2010");
    auto now = tagOf(updated(tag));
    return (now.TagsInFrame("TYER") > 0 ? now.TagText("TYER", 1) : Text()) + u'|' +
           (now.TagsInFrame("TDRC") > 0 ? now.TagText("TDRC", 1) : Text());
  };
  EXPECT_EQ(years(Id3v2Maker(3).padding(90).bytes()), u"2010|");
  EXPECT_EQ(years(Id3v2Maker(4).padding(90).bytes()), u"|2010");
  EXPECT_EQ(years(Id3v2Maker(4).text("TDRC", u"1999-03-12").padding(90).bytes()), u"|2010-03-12");
  EXPECT_EQ(years(Id3v2Maker(3).text("TYER", u"1999").text("TDRC", u"1999").padding(90).bytes()),
            u"2010|2010");
}

TEST_F(ID3v2Write, WhatIsNoReadableTagStaysBehindTheNewOne) {
  for (const Bytes& old : {Bytes("ID3\7\0\0\0\0\x02\x01", 10) + Bytes(300, 'x') + audio,
                           Bytes(500, 'x') + "ID3\3 in the music" + audio}) {
    const Bytes now = titled(old);
    EXPECT_EQ(now.substr(now.size() - old.size()), old);
    EXPECT_EQ(tagOf(now).Title(), u"Song");
  }
}

TEST_F(ID3v2Write, ABrokenFrameStaysWhatItIs) {
  const Bytes broken = "TALB" + plain32(5000) + Bytes(3, '\0') + "begun";
  const Bytes frames = "TPE1" + plain32(2) + Bytes(3, '\0') + "x" + broken;
  const Bytes old =
      Bytes("ID3\3\0\0", 6) + test::synchsafe32(static_cast<std::uint32_t>(frames.size())) + frames + audio;
  const Bytes now = titled(old);
  EXPECT_EQ(now.substr(10, 12 + 15 + broken.size()), frames.substr(0, 12) + songFrame + broken);
  EXPECT_TRUE(now.ends_with(audio));
}

TEST_F(ID3v2Write, WhatAnotherProgramWroteMeanwhileIsKept) {
  auto tag = tagOf(Id3v2Maker().text("TIT2", u"Old").padding(100).bytes() + audio);
  tag.setTitle(u"Song");
  folder.write(u"song.mp3", Id3v2Maker().text("TALB", u"Lights").text("TIT2", u"Older").bytes() + audio);
  const auto now = tagOf(updated(tag));
  EXPECT_EQ(now.Title() + u'|' + now.Album(), u"Song|Lights");
}

TEST_F(ID3v2Write, AnEmptyFileFails) {
  auto empty = tagOf("");
  empty.setTitle(u"Song");
  dialogs.expect(
      u"Error while Update ID3 V2  #-2147217407 occurred:" + empty.MP3File() + u" is not a valid MP3 file.",
      u"Update ID3 tag", Answer::Abort);
  EXPECT_EQ(empty.Update(context()), UpdateResult::Abort);
  EXPECT_EQ(folder.read(u"song.mp3"), "");
}

TEST_F(ID3v2Write, GrowthKeepsModeAndFollowsLinks) {
  auto tag = tagOf(audio);
  ASSERT_EQ(::chmod(folder.native(u"song.mp3").c_str(), 0640), 0);
  ASSERT_EQ(::symlink("song.mp3", folder.native(u"link.mp3").c_str()), 0);
  tag.setMP3File(folder.path(u"link.mp3"));
  tag.setTitle(u"Song");
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3").size(), audio.size() + 2048);
  struct stat song, link;
  ASSERT_EQ(::lstat(folder.native(u"song.mp3").c_str(), &song), 0);
  ASSERT_EQ(::lstat(folder.native(u"link.mp3").c_str(), &link), 0);
  EXPECT_EQ(song.st_mode & 07777, 0640U);
  EXPECT_TRUE(S_ISLNK(link.st_mode));
}

TEST_F(ID3v2Write, TheFileOfTheGrowthOverwritesNobody) {
  folder.write(u"songID3tagadd.tmp", "not ours");
  folder.write(u"songID3tagadd2.tmp", "left by a crash");
  auto tag = tagOf(audio);
  tag.setTitle(u"Song");
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3").size(), audio.size() + 2048);
  EXPECT_EQ(folder.read(u"songID3tagadd.tmp"), "not ours");
  EXPECT_EQ(folder.read(u"songID3tagadd2.tmp"), "left by a crash");
  EXPECT_EQ(files.list(folder.path()).entries.size(), 3U);
}

TEST_F(ID3v2Write, NamesOfAnyLengthGrow) {
  for (const Text& name : {Text(251, u'x') + u".mp3", Text(125, u'ж') + u".mp3", Text(u"mp3")}) {
    cMP3ID3v2 tag(files);
    tag.setMP3File(folder.write(name, audio));
    tag.setTitle(u"Song");
    EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
    EXPECT_EQ(folder.read(name).size(), audio.size() + 2048);
    files.remove(folder.path(name));
    EXPECT_TRUE(files.list(folder.path()).entries.empty());
  }
}

}  // namespace
}  // namespace velmora::tags
