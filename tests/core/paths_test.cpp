#include "core/paths.h"

#include <gtest/gtest.h>

namespace velmora::core::paths {
namespace {

TEST(Paths, JoinWithOneSeparator) {
  EXPECT_EQ(withSeparator(u"/music"), u"/music/");
  EXPECT_EQ(withSeparator(u"/music/"), u"/music/");
  EXPECT_EQ(join(u"/music", u"a.mp3"), u"/music/a.mp3");
  EXPECT_EQ(join(u"/", u"a.mp3"), u"/a.mp3");
}

TEST(Paths, AreCutBehindTheLastSeparator) {
  EXPECT_EQ(fileName(u"/music/x - y.mp3"), u"x - y.mp3");
  EXPECT_EQ(fileName(u"bare.mp3"), u"bare.mp3");
  EXPECT_EQ(folderPart(u"/music/a.mp3"), u"/music/");
  EXPECT_EQ(folderPart(u"bare.mp3"), u"");
}

TEST(Paths, ABareNameLacksFourCharactersWhateverTheyAre) {
  EXPECT_EQ(bareName(u"/music/x - y.mp3"), u"x - y");
  EXPECT_EQ(bareName(u"/music/x.flac"), u"x.");
  EXPECT_EQ(bareName(u"/music/abc"), u"");
}

TEST(Paths, AnExtensionIsTheLastThreeCharactersInLowerCase) {
  EXPECT_EQ(lastThree(u"/music/A.MP3"), u"mp3");
  EXPECT_EQ(lastThree(u"/music/a.jpeg"), u"peg");
  EXPECT_EQ(lastThree(u"ab"), u"ab");
}

TEST(Paths, ARecordCannotCarryQuotesAndLineBreaks) {
  EXPECT_TRUE(fitsRecord(u"it's, ok.mp3"));
  EXPECT_FALSE(fitsRecord(u"7\" mix.mp3"));
  EXPECT_FALSE(fitsRecord(u"a\nb.mp3"));
  EXPECT_FALSE(fitsRecord(u"a\rb.mp3"));
}

}  // namespace
}  // namespace velmora::core::paths
