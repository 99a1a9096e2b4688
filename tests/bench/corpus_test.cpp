#include "bench/corpus.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

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

/// Names and rows of a made collection, both tags read.
class Collection {
 public:
  explicit Collection(const std::string& folder) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      const Text path = core::fromBytes(entry.path().native());
      if (entry.is_regular_file() && core::paths::lastThree(path) == u"mp3") table_.appendPath(path);
    }
    table_.setBrojfajlova(table_.rows());
    table_.resizeColumns();
    tags::TagCache cache(table_, files_);
    for (int row = 1; row <= table_.rows(); ++row) cache.read(table_.path(row), row);
  }

  int rows() const { return table_.rows(); }
  /// Percentage of the rows for which `holds` is true.
  double share(const std::function<bool(const core::Track&, TextView name)>& holds) const {
    int count = 0;
    for (int row = 1; row <= rows(); ++row) {
      count += holds(table_.track(row), core::paths::bareName(table_.path(row))) ? 1 : 0;
    }
    return 100.0 * count / rows();
  }

 private:
  system::PosixFiles files_;
  core::TrackTable table_;
};

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
  const Collection made(folder.native(u"new"));
  ASSERT_EQ(made.rows(), songs);
  EXPECT_NEAR(made.share([](const auto& track, TextView) { return track.imaid3v2.isTrue(); }), 80, 6);
  EXPECT_NEAR(made.share([](const auto& track, TextView) { return track.imaid3v1.isTrue(); }), 70, 6);
  EXPECT_GT(made.share([](const auto& track, TextView) { return !track.pesmaid3v2.text().empty(); }), 70);
}

TEST(CorpusTest, NamesAreWellFormedHalfOfTheTimeAndOfAllOtherKindsToo) {
  const test::TempFolder folder;
  makeNewMusic(folder.native(u"new"), songs, 8);
  const Collection made(folder.native(u"new"));
  const auto named = [&made](const std::function<bool(TextView)>& holds) {
    return made.share([&holds](const core::Track&, TextView name) { return holds(name); });
  };
  const auto holding = [&named](TextView what) {
    return named([what](TextView name) { return name.find(what) != TextView::npos; });
  };
  EXPECT_GT(holding(u" - "), 50);
  EXPECT_GT(holding(u"_-_"), 1);
  EXPECT_GT(holding(u"%20"), 1);
  EXPECT_GT(named([](TextView name) { return std::ranges::count(name, u'-') >= 2; }), 5);
  EXPECT_GT(named([](TextView name) { return name.find(u'-') == TextView::npos; }), 5);
  EXPECT_GT(named([](TextView name) { return name.starts_with(u"0") || name.starts_with(u"1"); }), 5);
  EXPECT_GT(named([](TextView name) {
              return std::ranges::any_of(name,
                                         [](char16_t unit) { return unit >= 0xDC80 && unit <= 0xDCFF; });
            }),
            0.5);
  EXPECT_EQ(named([](TextView name) { return !core::paths::fitsRecord(name); }), 0);
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
