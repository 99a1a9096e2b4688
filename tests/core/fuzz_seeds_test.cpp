#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/target.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

struct Seed {
  fuzz::Target target;
  fs::path file;
};

void PrintTo(const Seed& seed, std::ostream* out) {
  *out << seed.file;
}

std::vector<Seed> allSeeds() {
  std::vector<Seed> seeds;
  for (const fuzz::Target& target : fuzz::targets()) {
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(fs::path(VELMORA_CORPUS) / target.name, missing))
      seeds.push_back({target, entry.path()});
  }
  std::ranges::sort(seeds, {}, &Seed::file);
  return seeds;
}

std::string nameOf(const testing::TestParamInfo<Seed>& info) {
  std::string name = std::string(info.param.target.name) + '_' + info.param.file.filename().string();
  std::ranges::replace_if(
      name, [](unsigned char character) { return !std::isalnum(character); }, '_');
  return name;
}

class FuzzSeed : public testing::TestWithParam<Seed> {};

TEST_P(FuzzSeed, Runs) {
  std::ifstream in(GetParam().file, std::ios::binary);
  ASSERT_TRUE(in);
  GetParam().target.run(Bytes(std::istreambuf_iterator<char>(in), {}));
}

INSTANTIATE_TEST_SUITE_P(All, FuzzSeed, testing::ValuesIn(allSeeds()), nameOf);

TEST(FuzzSeeds, EveryTargetHasSome) {
  EXPECT_FALSE(fuzz::targets().empty());
  const auto seeds = allSeeds();
  for (const fuzz::Target& target : fuzz::targets())
    EXPECT_TRUE(std::ranges::any_of(seeds, [&](const Seed& seed) { return seed.target.name == target.name; }))
        << target.name;
}

}  // namespace
}  // namespace velmora
