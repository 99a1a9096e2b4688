#include "bench/corpus.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "core/paths.h"
#include "core/text.h"
#include "core/track_table.h"
#include "system/posix_files.h"
#include "tags/tag_cache.h"
#include "tests/support/temp_folder.h"
#include "tests/support/tree_snapshot.h"

namespace velmora::bench {
namespace {

constexpr int songs = 600;

TEST(CorpusTest, SameSeedMakesTheSameBytesAndAnotherSeedOthers) {
  const test::TempFolder folder;
  makeNewMusic(folder.native(u"a"), songs, 5);
  makeNewMusic(folder.native(u"b"), songs, 5);
  makeNewMusic(folder.native(u"c"), songs, 6);
  EXPECT_EQ(test::TreeSnapshot::of(folder.path(u"a")), test::TreeSnapshot::of(folder.path(u"b")));
  EXPECT_FALSE(test::TreeSnapshot::of(folder.path(u"a")) == test::TreeSnapshot::of(folder.path(u"c")));
}

TEST(CorpusTest, TagsAreOnAsManySongsAsToldAndCanBeRead) {
  const test::TempFolder folder;
  const CorpusCounts counts = makeNewMusic(folder.native(u"new"), songs, 7);
  EXPECT_EQ(counts.songs, songs);
  EXPECT_GT(counts.others, 0);
  system::PosixFiles files;
  core::TrackTable table;
  tags::TagCache cache(table, files);
  int first = 0, second = 0, titles = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.native(u"new"))) {
    const Text path = core::fromBytes(entry.path().native());
    if (!entry.is_regular_file() || core::paths::lastThree(path) != u"mp3") continue;
    EXPECT_TRUE(core::paths::fitsRecord(path));
    table.appendPath(path);
    table.resizeColumns();
    cache.read(path, table.rows());
    const core::Track& track = table.track(table.rows());
    first += track.imaid3v1.isTrue();
    second += track.imaid3v2.isTrue();
    titles += !track.pesmaid3v2.text().empty();
  }
  ASSERT_EQ(table.rows(), songs);
  EXPECT_NEAR(100 * second / songs, 80, 6);
  EXPECT_NEAR(100 * first / songs, 70, 6);
  EXPECT_GT(100 * titles / songs, 70);
}

TEST(CorpusTest, ReadyMusicHasATwentiethMoreWithoutTagsAndATenthByOneArtist) {
  const test::TempFolder folder;
  EXPECT_EQ(makeReadyMusic(folder.native(u"ready"), songs, 10).songs, songs + songs / 20);
  int apart = 0;
  int busy = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.native(u"ready"))) {
    if (!entry.is_regular_file()) continue;
    apart += entry.path().parent_path().filename() == untagged;
    busy += entry.path().filename().native().starts_with(busyArtist);
  }
  EXPECT_EQ(apart, songs / 20);
  EXPECT_NEAR(100 * busy / songs, 10, 4);
}

TEST(CorpusTest, EmptyBaseHasTheShapeAskedFor) {
  const test::TempFolder folder;
  const BaseShape shape{.genres = 6, .artists = 30, .albums = 70, .songs = 700};
  EXPECT_EQ(makeEmptyBase(folder.native(u"base"), shape, 11).songs, shape.songs);
  std::vector<int> foldersAt(3);
  int files = 0;
  const std::filesystem::path base(folder.native(u"base"));
  for (auto entry = std::filesystem::recursive_directory_iterator(base);
       entry != std::filesystem::recursive_directory_iterator(); ++entry) {
    if (entry->is_directory())
      ++foldersAt[static_cast<std::size_t>(entry.depth())];
    else
      ++files;
  }
  EXPECT_EQ(foldersAt, (std::vector<int>{shape.genres, shape.artists, shape.albums}));
  EXPECT_EQ(files, shape.songs);
}

TEST(CorpusTest, BaseLiesByGenreArtistAndAlbum) {
  const test::TempFolder folder;
  EXPECT_EQ(makeBase(folder.native(u"base"), songs, 9).songs, songs);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.native(u"base"))) {
    if (!entry.is_regular_file()) continue;
    const std::string inside = entry.path().lexically_relative(folder.native(u"base")).native();
    EXPECT_EQ(std::ranges::count(inside, '/'), 3) << inside;
  }
}

}  // namespace
}  // namespace velmora::bench
