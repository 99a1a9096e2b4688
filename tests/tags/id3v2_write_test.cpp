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

Bytes head(std::uint32_t size) {
  return Bytes("ID3\x03\0\0", 6) + plain32(size);
}

Bytes frame(BytesView name, BytesView body) {
  return Bytes(name) + plain32(static_cast<std::uint32_t>(body.size() + 1)) + Bytes(3, '\0') + Bytes(body);
}

/// What the file becomes when `count` bytes 0 go ahead of it and the tag then over its start.
Bytes grown(const Bytes& file, std::size_t count, const Bytes& tag) {
  Bytes bytes = Bytes(count, '\0') + file;
  return bytes.replace(0, tag.size(), tag);
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

  const Bytes audio = test::mpegFrames(8);
  const Bytes songFrame = frame("TIT2", "Song");
  const Bytes end = Bytes(4, '\0');
};

TEST_F(ID3v2Write, AFirstTagTakes2048Bytes) {
  const Bytes now = titled(audio);
  EXPECT_EQ(now, grown(audio, 2048, head(2048) + songFrame + end));
  EXPECT_EQ(now.substr(6, 4), Bytes("\0\0\x08\0", 4));
}

TEST_F(ID3v2Write, TheSizeIsAMultipleOf2048AboveTheTotal) {
  for (const auto& [total, size] : {std::pair{2047, 2048}, {2048, 4096}, {2049, 4096}, {4096, 6144}}) {
    const Bytes now = titled(audio, Text(static_cast<std::size_t>(total) - 25, u'x'));
    EXPECT_EQ(now.size(), audio.size() + static_cast<std::size_t>(size));
    EXPECT_EQ(now.substr(6, 4), plain32(static_cast<std::uint32_t>(size)));
    EXPECT_EQ(now.substr(static_cast<std::size_t>(size)), audio);
  }
}

TEST_F(ID3v2Write, ASmallerTagGoesOverTheOldOneInPlace) {
  const Bytes old = Id3v2Maker().text("TIT2", u"Song").padding(1000).plainBytes() + audio;
  auto tag = tagOf(old);
  tag.setTitle(u"Tune");
  tag.setArtist(u"Arvola");
  const std::uint32_t oldSize = 10 + 5 + 1000;
  const Bytes written = head(oldSize) + frame("TIT2", "Tune") + frame("TPE1", "Arvola") + end;
  EXPECT_EQ(updated(tag), Bytes(old).replace(0, written.size(), written));

  // Stale bytes of a longer title stay behind the terminator.
  auto shorter = tagOf(folder.read(u"song.mp3"));
  shorter.setArtist(u"A");
  const Bytes now = updated(shorter);
  EXPECT_EQ(now.size(), old.size());
  EXPECT_EQ(tagOf(now).Artist(), u"A");
}

TEST_F(ID3v2Write, InPlaceItStartsAtTheMarkerWhereverThatLies) {
  const Bytes junk(700, '\x11');
  const Bytes old = junk + Id3v2Maker().padding(3000).plainBytes() + audio;
  const Bytes written = head(3000) + songFrame + end;
  EXPECT_EQ(titled(old), Bytes(old).replace(700, written.size(), written));
}

TEST_F(ID3v2Write, AsLargeAsTheOldSizeIsGrowth) {
  // The old size is 29, and so is the new total: the file grows by 2048 - 29, and the tag lies over what
  // follows, the first bytes of the old tag among it.
  const Bytes old = Id3v2Maker().padding(29).plainBytes() + audio;
  EXPECT_EQ(titled(old), grown(old, 2048 - 29, head(2048) + songFrame + end));

  // One byte more of room, and it goes in place.
  const Bytes roomy = Id3v2Maker().padding(30).plainBytes() + audio;
  EXPECT_EQ(titled(roomy).size(), roomy.size());
}

TEST_F(ID3v2Write, GrowthBeyondTheSlackWritesOverThePartlyShiftedOldTag) {
  const Bytes old = Id3v2Maker().text("TALB", Text(2000, u'a')).padding(20).plainBytes() + audio;
  const std::size_t oldSize = 10 + 2001 + 20;
  const Bytes written =
      head(4096) + frame("TALB", Bytes(1, '\0') + Bytes(2000, 'a')) + frame("TIT2", Bytes(1000, 't')) + end;
  EXPECT_EQ(titled(old, Text(1000, u't')), grown(old, 4096 - oldSize, written));
}

TEST_F(ID3v2Write, OtherVersionsAreWrittenAsVersion3) {
  for (const int version : {2, 4}) {
    const Bytes old =
        Id3v2Maker(version).values({.title = u"Song", .artist = u"Arvola"}).padding(900).bytes();
    const Bytes now = titled(old + audio, u"Tune");
    EXPECT_EQ(now[3], '\x03');
    EXPECT_EQ(now.substr(10, 27), frame("TPE1", "Arvola") + frame("TIT2", "Tune").substr(0, 10));
    EXPECT_EQ(now.substr(now.size() - audio.size()), audio);
  }
}

TEST_F(ID3v2Write, WhatReadingDroppedIsGoneAndLongBodiesGainAByte) {
  const Bytes picture(400, '\xE5');
  const Bytes old =
      Id3v2Maker().text("TIT2", u"Skål").frame("APIC", picture).padding(3000).plainBytes() + audio;
  auto tag = tagOf(old);
  const Bytes now = updated(tag);
  EXPECT_EQ(now.substr(10, 14 + 411), frame("TIT2", "Skl") + frame("APIC", picture));
  EXPECT_EQ(tagOf(now).TagText("APIC", 1).size(), picture.size() + 1);
}

TEST_F(ID3v2Write, SettersReplaceTheirFrameAndPutItLast) {
  auto tag =
      tagOf(Id3v2Maker().text("TIT2", u"a").text("TIT2", u"b").text("TPE1", u"c").padding(50).plainBytes());
  tag.setTitle(u"Tune");
  EXPECT_EQ(tag.Frame(1), "TPE1");
  EXPECT_EQ(tag.Frame(2), "TIT2");
  EXPECT_EQ(tag.TagsInFrame("TIT2"), 1);
  EXPECT_EQ(tag.Title(), u"Tune");

  tag.setComment(u"live");
  EXPECT_EQ(tagOf(updated(tag)).Comment(), u"ntlive") << "what the reader leaves of it";
  tag.setLinkTo(u"page");
  tag.setLyrics(u"la");
  EXPECT_EQ(tag.TagText("COMM", 1), Text(u"\0nt\0live", 8));
  EXPECT_EQ(tag.TagText("WXXX", 1), Text(u"\0page", 5));
  EXPECT_EQ(tag.TagText("USLT", 1), Text(u"\0la", 3));

  tag.setGenre(103);
  EXPECT_EQ(tag.TagText("TCON", 1), u"(103)");
  tag.setOtherGenreName(u"Turbo");
  EXPECT_EQ(tag.TagText("TCON", 1), u"Turbo");
  EXPECT_EQ(tag.Genre(), 103);
  EXPECT_EQ(tag.TagsInFrame("TCON"), 1);
}

TEST_F(ID3v2Write, IdentifiersThatHoldTheMarkerAreLeftOut) {
  auto tag = tagOf(audio);
  tag.AddTag("ID3x", u"x");
  tag.AddTag("xID3", u"x");
  tag.setTitle(u"Žš č");
  EXPECT_EQ(updated(tag).substr(0, 29), head(2048) + frame("TIT2", "\x8E\x9A ?") + end);
}

TEST_F(ID3v2Write, AFrameWithoutANameFailsBeforeTheFileIsTouched) {
  const Bytes old = Id3v2Maker(2).text("TOA", u"x").padding(500).bytes() + audio;
  auto tag = tagOf(old);
  tag.setTitle(u"Song");
  dialogs.expect(u"Error while Update ID3 V2  # 5 occurred:Invalid procedure call or argument",
                 u"Update ID3 tag", Answer::Ignore);
  EXPECT_EQ(tag.Update(context()), UpdateResult::Ignore);
  EXPECT_EQ(folder.read(u"song.mp3"), old);
  auto empty = tagOf("");
  dialogs.expectTitle(u"Update ID3 tag", Answer::Abort);
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
