#include "tags/tag_removal.h"

#include "platform/file_error.h"
#include "tests/support/scripted_desktop.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

struct Removal : TagFixture {
  Bytes withoutID3v2(const Bytes& bytes) {
    SkiniID3v2(files, desktop, player, folder.write(u"song.mp3", bytes));
    return folder.read(u"song.mp3");
  }
  Bytes withoutID3v1(const Bytes& bytes) {
    SkiniID3v1(files, desktop, player, folder.write(u"song.mp3", bytes));
    return folder.read(u"song.mp3");
  }

  const Bytes audio = test::mpegFrames(30);
  test::ScriptedDesktop desktop;
  platform::NoFileHolder player;
};

TEST_F(Removal, TakesTheLeadingTagByItsSynchsafeSize) {
  EXPECT_EQ(withoutID3v2(test::Id3v2Maker().text("TIT2", u"Song").padding(3000).bytes() + audio), audio);
  EXPECT_EQ(withoutID3v2(audio), audio);
  EXPECT_EQ(withoutID3v2("x" + test::Id3v2Maker().padding(30).bytes()),
            "x" + test::Id3v2Maker().padding(30).bytes())
      << "only at the very start";
  // The size that this program writes is a plain number, so part of its padding stays.
  const Bytes own = test::Id3v2Maker().padding(2048 - 10).plainBytes();
  EXPECT_EQ(withoutID3v2(own + audio),
            Bytes(own.size() - ((2038 >> 8 << 7) + (2038 & 0xFF) + 10), '\0') + audio);
}

TEST_F(Removal, NeverEmptiesASong) {
  const Bytes lying =
      test::Id3v2Maker().text("TIT2", u"Song").padding(100'000).bytes().substr(0, 500) + audio;
  EXPECT_THROW(withoutID3v2(lying), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), lying);
  const Bytes tagAlone = test::Id3v2Maker().padding(100).bytes();
  EXPECT_THROW(withoutID3v2(tagAlone), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), tagAlone);
  const Bytes last = test::id3v1Tag({});
  EXPECT_THROW(withoutID3v1(last), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), last);
  EXPECT_EQ(files.list(folder.path()).entries.size(), 1U);
}

TEST_F(Removal, TakesTheLast128BytesUntested) {
  EXPECT_EQ(withoutID3v1(audio + test::id3v1Tag({})), audio);
  EXPECT_EQ(withoutID3v1(audio), audio.substr(0, audio.size() - 128));
}

TEST_F(Removal, LetsEventsThroughAfterEachBlock) {
  const Bytes large(5'000'000, 'x');
  EXPECT_EQ(withoutID3v1(large).size(), large.size() - 128);
  EXPECT_EQ(desktop.pumps, 3);
}

TEST_F(Removal, TheCopyOverwritesNobody) {
  folder.write(u"song.mp3.new", "new");
  folder.write(u"song.mp3.mp3", "another song");
  EXPECT_EQ(withoutID3v2(test::Id3v2Maker().padding(30).bytes() + audio), audio);
  EXPECT_EQ(withoutID3v1(audio + test::id3v1Tag({})), audio);
  EXPECT_EQ(folder.read(u"song.mp3.new"), "new");
  EXPECT_EQ(folder.read(u"song.mp3.mp3"), "another song");
  EXPECT_EQ(files.list(folder.path()).entries.size(), 3U);
}

}  // namespace
}  // namespace velmora::tags
