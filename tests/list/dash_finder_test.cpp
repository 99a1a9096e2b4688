#include "list/dash_finder.h"

#include "tests/support/house_world.h"
#include "tests/support/mp3_maker.h"

namespace velmora::list {
namespace {

struct DashFinderTest : test::HouseWorld {
  /// Dash position of a row with this path.
  Text dashOf(const Text& path) {
    table.appendPath(path);
    house.dashes.find(table.rows());
    return table.track(table.rows()).crtapos.text();
  }
  Text found(TextView fileName) {
    table.setBrojfajlova(table.rows() + 1);
    return dashOf(folder.path(fileName));
  }
  Text foundInBase(TextView below) {
    table.setBrojfajlova(0);
    table.dirzabazu = u"/base";
    return dashOf(u"/base/" + Text(below));
  }
};

TEST_F(DashFinderTest, ANewRowIsCutAtItsFirstDash) {
  EXPECT_EQ(found(u"Arvola - Harbour.mp3"), u" 8");
  EXPECT_EQ(table.track(1).pevac.text(), u"Arvola ");
  EXPECT_EQ(table.track(1).pesma.text(), u" Harbour");
  EXPECT_EQ(found(u"-Song.mp3"), u" 1");
  EXPECT_EQ(found(u"Harbour.mp3"), u" 0");
  EXPECT_TRUE(table.track(1).procitan.isNothing()) << "one dash asks no tag";
}

TEST_F(DashFinderTest, TrackNamesHaveNoArtist) {
  EXPECT_EQ(found(u"Track 3 - Song.mp3"), u" 0");
  EXPECT_EQ(found(u"TRACKS - Song.mp3"), u" 0");
  EXPECT_EQ(found(u"My track - Song.mp3"), u" 10");
}

TEST_F(DashFinderTest, TwoDashesAreSettledByTheArtistOfEitherTag) {
  const auto song = [this](TextView name, const Bytes& bytes) {
    folder.write(name, bytes);
    return found(name);
  };
  const test::SongTags koRa{.artist = u"ko-ra"};
  EXPECT_EQ(song(u"KO-RA - Thunder.mp3", test::mpegFrames() + test::id3v1Tag(koRa)), u" 7");
  EXPECT_EQ(song(u"Ko-Ra - One.mp3",
                 test::Id3v2Maker().values(koRa).padding(100).plainBytes() + test::mpegFrames()),
            u" 7");
  EXPECT_EQ(song(u"KO-RA - Two.mp3", test::mpegFrames() + test::id3v1Tag({.artist = u"KO"})), u" 3");
  EXPECT_EQ(song(u"KO-RA - Three.mp3", test::mpegFrames()), u" 3");
  EXPECT_EQ(found(u"KO-RA - missing.mp3"), u" 3");
  EXPECT_EQ(song(u"Track - 1 - Song.mp3", test::mpegFrames() + test::id3v1Tag({.artist = u"Track - 1"})),
            u" 0");
}

TEST_F(DashFinderTest, TheArtistFolderOfABaseRowProtectsTheDashesOfItsName) {
  EXPECT_EQ(foundInBase(u"Rock/KO-RA/1999/Ko-Ra - Thunder.mp3"), u" 7");
  EXPECT_EQ(foundInBase(u"Rock/Other/KO-RA - Thunder.mp3"), u" 3");
  EXPECT_EQ(foundInBase(u"Rock/KO-RA - Thunder.mp3"), u" 3") << "no artist folder";
  EXPECT_EQ(foundInBase(u"Rock/KO-RA/KO-RA.mp3"), u" 0") << "no dash behind the artist";
}

}  // namespace
}  // namespace velmora::list
