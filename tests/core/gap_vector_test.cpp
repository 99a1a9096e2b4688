#include "core/gap_vector.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace velmora {
namespace {

/// Whatever is done to it, it holds what a plain vector holds.
TEST(GapVector, IsAVectorInEveryOrderOfChanges) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    core::GapVector<std::shared_ptr<int>> gap;
    std::vector<std::shared_ptr<int>> plain;
    for (int step = 0; step < 300; ++step) {
      const auto item = std::make_shared<int>(step);
      const std::size_t at = plain.empty() ? 0 : random() % plain.size();
      const auto offset = static_cast<std::ptrdiff_t>(at);
      switch (random() % (round % 2 == 0 ? 4 : 8)) {
        case 0:
          gap.push_back(item);
          plain.push_back(item);
          break;
        case 1:
          if (plain.empty()) break;
          gap.erase(at);
          plain.erase(plain.begin() + offset);
          break;
        case 2:
          gap.resize(at + step % 3);
          plain.resize(at + step % 3);
          break;
        default:
          gap.insert(at, item);
          plain.insert(plain.begin() + offset, item);
      }
      ASSERT_EQ(gap.size(), plain.size());
      for (std::size_t i = 0; i < plain.size(); ++i) ASSERT_EQ(gap[i], plain[i]);
    }
  }
}

TEST(GapVector, WhatIsErasedIsLetGo) {
  core::GapVector<std::shared_ptr<int>> gap;
  const auto item = std::make_shared<int>(1);
  for (int i = 0; i < 3; ++i) gap.push_back(item);
  gap.erase(1);
  EXPECT_EQ(item.use_count(), 3);
  gap.resize(0);
  EXPECT_EQ(item.use_count(), 1);
}

}  // namespace
}  // namespace velmora
