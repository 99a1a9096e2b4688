#include "tags/id3v1.h"

#include "platform/file_error.h"
#include "tags/genre.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using platform::Answer;
using test::id3v1Tag;

struct ID3v1 : TagFixture {
  cMP3ID3v1 tagOf(const Bytes& bytes) {
    cMP3ID3v1 tag(files);
    tag.setMP3File(folder.write(u"song.mp3", bytes));
    return tag;
  }
};

const test::SongTags tags{u"Harbour", u"Arvola", u"Northern Lights", u"1999", 7, {}};

TEST(Genre, NamesAndTheGapInThemAndCodesByExactNameFromOneUp) {
  const std::pair<int, TextView> cases[] = {{0, u"Blues"},          {17, u"Rock"},
                                            {25, u"Euro - Techno"}, {122, u"Drum Solo"},
                                            {124, u"Euro - House"}, {147, u"Synth Pop"}};
  for (const auto& [code, name] : cases) EXPECT_EQ(GenreName(code), name);
  for (const int code : {123, 148, 254, 255, -1, 1000}) EXPECT_EQ(GenreName(code), u"");
  for (const TextView none : {u"Blues", u"opera", u"Opera "}) EXPECT_FALSE(genreCode(none));
  for (int code = 1; code < 148; ++code)
    EXPECT_TRUE(code == 123 || genreCode(GenreName(code)) == code) << code;
}

TEST_F(ID3v1, ReadsItsFields) {
  const auto tag = tagOf(test::mpegFrames(2) + id3v1Tag(tags, 17, u"live"));
  EXPECT_TRUE(tag.HasID3v1Tag());
  EXPECT_EQ(tag.Title + u'|' + tag.Artist + u'|' + tag.Album + u'|' + tag.Year + u'|' + tag.Comment,
            u"Harbour|Arvola|Northern Lights|1999|live");
  EXPECT_EQ(tag.Track, 7);
  EXPECT_EQ(tag.Genre, 17);
}

TEST_F(ID3v1, TextsEndAtAZeroByteAndHoldNoControlCharacters) {
  const auto read = [this](const Text& title) { return tagOf("x" + id3v1Tag({.title = title})).Title; };
  EXPECT_EQ(read(u"Häfeň \u0001of\u007F~ Š"), u"Häfe? of~ Š");
  EXPECT_EQ(read(Text(u"Song\0behind", 11)), u"Song");
  EXPECT_EQ(read(u"Song   "), u"Song   ") << "blanks at the end are the caller's";
  EXPECT_EQ(read(Text(40, u'x')), Text(30, u'x'));
}

TEST_F(ID3v1, TrackNeedsTheZeroByte) {
  Bytes tag = id3v1Tag(tags, 17, Text(28, u'c'));
  tag[125] = 'x';
  const auto read = tagOf("x" + tag);
  EXPECT_EQ(read.Track, 0);
  EXPECT_EQ(read.Comment, Text(28, u'c'));
}

TEST_F(ID3v1, NoTagLeavesTheFieldsEmpty) {
  for (const Bytes& bytes : {Bytes(), id3v1Tag(tags), "x" + id3v1Tag(tags).replace(0, 3, "tag"),
                             id3v1Tag(tags) + "x", test::mpegFrames(2)}) {
    const auto tag = tagOf(bytes);
    EXPECT_FALSE(tag.HasID3v1Tag());
    EXPECT_EQ(tag.Title, u"");
    EXPECT_EQ(tag.Track, 0);
    EXPECT_EQ(tag.Genre, 255);
  }
}

TEST_F(ID3v1, AFileThatCannotBeOpenedThrowsAndStaysBound) {
  cMP3ID3v1 tag(files);
  const Text path = folder.path(u"missing.mp3");
  try {
    tag.setMP3File(path);
    FAIL() << "a missing file was read";
  } catch (const platform::FileError& error) {
    EXPECT_EQ(error.number, platform::FileError::fileNotFound);
    EXPECT_EQ(error.source, u"velmora.cMP3ID3v1");
  }
  EXPECT_EQ(tag.MP3File(), path);
}

TEST_F(ID3v1, ANewTagGoesBehindTheLastByte) {
  const Bytes audio = test::mpegFrames(2);
  auto tag = tagOf(audio);
  tag.Title = u"A title of more than thirty letters";
  tag.Artist = u"Žal č";  // what the code page lacks becomes "?"
  tag.Track = 3;
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);

  Bytes wanted = id3v1Tag({.title = u"A title of more than thirty let", .track = 3});
  wanted.replace(33, 5,
                 "\x8E"
                 "al ?");
  EXPECT_EQ(folder.read(u"song.mp3"), audio + wanted);

  // The second write finds it and grows no more.
  auto again = tagOf(audio + wanted);
  again.Album = u"Songs";
  EXPECT_EQ(again.Update(context()), UpdateResult::Done);
  wanted.replace(63, 5, "Songs");
  EXPECT_EQ(folder.read(u"song.mp3"), audio + wanted);
}

TEST_F(ID3v1, OnlyChangedFieldsAreWritten) {
  Bytes old = id3v1Tag(tags, 200, Text(28, u'c'));
  old.replace(125, 2, "cc");       // a comment of thirty letters, and so no track
  old.replace(10, 3, "\1\0x", 3);  // what no field shows
  auto tag = tagOf("audio" + old);
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3"), "audio" + old);
  tag.Album = u"Other";
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3"), "audio" + Bytes(old).replace(63, 30, "Other" + Bytes(25, '\0')));
  tag.Track = 4;
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3").substr(5 + 125, 2), Bytes("\0\4", 2));
}

TEST_F(ID3v1, AFileOf128BytesOrLessIsLeftAlone) {
  for (const Bytes& bytes : {Bytes("x"), id3v1Tag(tags)}) {
    auto tag = tagOf(bytes);
    tag.Title = u"Other";
    EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
    EXPECT_EQ(folder.read(u"song.mp3"), bytes);
  }
  auto tag = tagOf(Bytes(129, 'x'));
  EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
  EXPECT_EQ(folder.read(u"song.mp3").size(), 129U + 128U);
}

TEST_F(ID3v1, FailuresOfUpdateAsWithThePathOfTheCurrentRow) {
  table.appendPath(u"/music/current row.mp3");
  table.currentRow = 1;
  auto tag = tagOf("");
  dialogs.expect(u"Error while Update ID3 V1 /music/current row.mp3 #-2147217407 occurred:" + tag.MP3File() +
                     u" is not a valid MP3 file.",
                 u"Update ID3 tag", Answer::Abort);
  EXPECT_EQ(tag.Update(context()), UpdateResult::Abort);
  EXPECT_EQ(dialogs.lastButtons, platform::Buttons::AbortRetryIgnore);
  EXPECT_EQ(dialogs.lastIcon, platform::Icon::Critical);

  files.remove(tag.MP3File());
  dialogs.expect(u"Error while Update ID3 V1 /music/current row.mp3 # 53 occurred:File not found",
                 u"Update ID3 tag", Answer::Ignore);
  EXPECT_EQ(tag.Update(context()), UpdateResult::Ignore);
}

TEST_F(ID3v1, RetryTellsOnlyAbortFromSuccess) {
  auto tag = tagOf("");
  const auto answers = [&](std::initializer_list<Answer> script) {
    for (const Answer answer : script) dialogs.expectTitle(u"Update ID3 tag", answer);
    return tag.Update(context());
  };
  EXPECT_EQ(answers({Answer::Retry, Answer::Retry, Answer::Abort}), UpdateResult::Abort);
  EXPECT_EQ(answers({Answer::Retry, Answer::Ignore}), UpdateResult::Done);
}

}  // namespace
}  // namespace velmora::tags
