#include "core/paths.h"

#include <gtest/gtest.h>

namespace velmora::core::paths {
namespace {

TEST(Paths, JoinWithOneSeparatorAndAreCutBehindTheLast) {
  EXPECT_EQ(withSeparator(u"/music"), u"/music/");
  EXPECT_EQ(withSeparator(u"/music/"), u"/music/");
  EXPECT_EQ(join(u"/music", u"a.mp3"), u"/music/a.mp3");
  EXPECT_EQ(join(u"/", u"a.mp3"), u"/a.mp3");
  struct {
    TextView path, folder, name, bare, lastThree;
  } cases[] = {{u"/music/x - Y.MP3", u"/music/", u"x - Y.MP3", u"x - Y", u"mp3"},
               {u"/music/x.flac", u"/music/", u"x.flac", u"x.", u"lac"},
               {u"bare.mp3", u"", u"bare.mp3", u"bare", u"mp3"},
               {u"/music/ab", u"/music/", u"ab", u"", u"/ab"}};
  for (const auto& c : cases) {
    EXPECT_EQ(folderPart(c.path), c.folder);
    EXPECT_EQ(fileName(c.path), c.name);
    EXPECT_EQ(bareName(c.path), c.bare) << "four characters less, whatever they are";
    EXPECT_EQ(lastThree(c.path), c.lastThree);
  }
}

TEST(Paths, ARecordCannotCarryQuotesAndLineBreaks) {
  EXPECT_TRUE(fitsRecord(u"it's, ok.mp3"));
  for (const TextView name : {u"7\" mix.mp3", u"a\nb.mp3", u"a\rb.mp3"}) EXPECT_FALSE(fitsRecord(name));
}

}  // namespace
}  // namespace velmora::core::paths
