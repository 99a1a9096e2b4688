#include "tags/tag_removal.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/file_error.h"
#include "tags/id3v2.h"
#include "tests/support/scripted_desktop.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

struct Removal : TagFixture {
  Bytes without(const Bytes& bytes, bool (*remove)(const RemovalParts&, const Text&) = &SkiniID3v2) {
    EXPECT_TRUE(remove({files, desktop, player, busyFile}, folder.write(u"song.mp3", bytes)));
    return folder.read(u"song.mp3");
  }

  const Bytes audio = test::mpegFrames(30);
  test::ScriptedDesktop desktop;
  platform::NoFileHolder player;
  ui::Label label;
  BusyFile busyFile{files, desktop, label};
};

TEST_F(Removal, TakesTheLeadingTagUpToItsRealEnd) {
  const Bytes tag = test::Id3v2Maker().text("TIT2", u"Song").padding(3000).bytes();
  for (const Bytes& kept : {audio, "x" + tag, Bytes("ID3\7\0\0\0\0\2\1", 10) + Bytes(300, 'x')}) {
    EXPECT_EQ(without(tag + kept), kept);
    EXPECT_EQ(without(kept), kept);
  }
}

TEST_F(Removal, WhatWeMadeGoesWhole) {
  for (const Bytes& song :
       {audio, Bytes(audio).replace(36, 4, "Xing"), Bytes(5000, '\0') + audio, Bytes(3000, 'x'),
        Bytes(3958 - 2048, 'x') + audio, Bytes(1034 - 1024, '\0') + audio, "xID3" + audio, Bytes("TIT2"),
        test::id3v1Tag({})})
    for (const std::size_t letters : {1U, 1500U, 40'000U}) {
      cMP3ID3v2 tag(files);
      tag.setMP3File(folder.write(u"song.mp3", song));
      tag.setTitle(Text(letters, u'x'));
      EXPECT_EQ(tag.Update(context()), UpdateResult::Done);
      EXPECT_EQ(without(folder.read(u"song.mp3")), song);
    }
}

TEST_F(Removal, NeverEmptiesASong) {
  const Bytes tagAlone = test::Id3v2Maker().padding(100).bytes();
  EXPECT_THROW(without(tagAlone), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), tagAlone);
  const Bytes last = test::id3v1Tag({});
  EXPECT_THROW(without(last, &SkiniID3v1), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), last);
}

TEST_F(Removal, CutsTheTagAtTheEndAndNothingElse) {
  EXPECT_EQ(without(audio + test::id3v1Tag({}), &SkiniID3v1), audio);
  EXPECT_EQ(without(audio, &SkiniID3v1), audio);
}

TEST_F(Removal, WaitsForASongThatIsHeldUnlessThatIsGivenUp) {
  const Bytes song = test::Id3v2Maker().padding(30).bytes() + audio + test::id3v1Tag({});
  const Text path = folder.write(u"song.mp3", song);
  const int other = ::open(folder.native(u"song.mp3").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  busyFile.givenUp = [] { return true; };
  EXPECT_FALSE(SkiniID3v2({files, desktop, player, busyFile}, path));
  EXPECT_FALSE(SkiniID3v1({files, desktop, player, busyFile}, path));
  EXPECT_EQ(folder.read(u"song.mp3"), song);
  busyFile.givenUp = [other] { return ::flock(other, LOCK_UN) != 0; };
  EXPECT_TRUE(SkiniID3v2({files, desktop, player, busyFile}, path));
  EXPECT_EQ(folder.read(u"song.mp3"), audio + test::id3v1Tag({}));
  ::close(other);
}

TEST_F(Removal, LetsEventsThroughAfterEachBlockAndLeavesASongThatChangedMeanwhile) {
  const Bytes tag = test::Id3v2Maker().padding(30).bytes(), large = test::mpegFrames(12'000);
  EXPECT_EQ(without(tag + large), large);
  EXPECT_EQ(desktop.pumps, 3);
  const Bytes other = tag + audio;
  desktop.then([&] { folder.write(u"song.mp3", other); });
  EXPECT_THROW(without(tag + large), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), other);
  EXPECT_EQ(files.list(folder.path()).entries.size(), 1U);
}

TEST_F(Removal, TheCopyOverwritesNobody) {
  folder.write(u"song.mp3.new", "new");
  EXPECT_EQ(without(test::Id3v2Maker().padding(30).bytes() + audio), audio);
  EXPECT_EQ(folder.read(u"song.mp3.new"), "new");
  EXPECT_EQ(files.list(folder.path()).entries.size(), 2U);
}

}  // namespace
}  // namespace velmora::tags
