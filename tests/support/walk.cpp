#include "tests/support/walk.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>

#include "core/text.h"
#include "journal/undo_record.h"
#include "tags/tag_cache.h"
#include "tests/support/headless_velmora.h"

namespace velmora::test {

int Dice::operator()(int below) {
  return static_cast<int>(random_() % static_cast<unsigned>(std::max(below, 1)));
}

std::vector<unsigned> walkSeeds(unsigned usual) {
  const char* asked = std::getenv("VELMORA_WALKS");
  std::vector<unsigned> all(asked ? std::strtoul(asked, nullptr, 10) : usual);
  std::iota(all.begin(), all.end(), 1U);
  return all;
}

std::set<std::string> contentOf(HeadlessVelmora& of) {
  std::set<std::string> all;
  tags::TagCache cache(of.table(), of.files);
  for (int row = 1; row <= of.table().workingRows(); ++row) {
    EXPECT_TRUE(cache.read(of.table().path(row), row));
    const core::Track& track = of.table().track(row);
    std::string line;
    for (const core::Column column :
         {&core::Track::nizdes, &core::Track::crtapos, &core::Track::pevac, &core::Track::pesma})
      line += core::toBytes((track.*column).text()) + '|';
    const auto add = [&](bool has, std::size_t from) {
      for (std::size_t i = from; i < from + 6; ++i)
        line += has ? core::toBytes((track.*journal::snapshotColumns()[i]).text()) + '|' : "none|";
    };
    add(track.imaid3v1.isTrue(), 0);
    add(track.imaid3v2.isTrue(), 6);
    all.insert(line);
  }
  return all;
}

std::vector<Text> artistsOf(const core::TrackTable& table) {
  std::vector<Text> artists = table.autori;
  std::ranges::sort(artists);
  return artists;
}

void expectAsLoadedAfresh(HeadlessVelmora& program, const Text& folder) {
  HeadlessVelmora fresh;
  fresh.startInProcessingWindow();
  fresh.addFolder(folder);
  EXPECT_EQ(contentOf(program), contentOf(fresh));
  EXPECT_EQ(artistsOf(program.table()), artistsOf(fresh.table()));
}

}  // namespace velmora::test
