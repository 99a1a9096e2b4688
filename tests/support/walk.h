#pragma once

#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/track_table.h"
#include "platform/text.h"

namespace velmora::test {

class HeadlessVelmora;

/// What a walk of random commands is made of: each seed is one walk.
class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  /// 0 to `below` - 1; 0 when there is nothing below.
  int operator()(int below);
  template <typename Item>
  const Item& oneOf(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>((*this)(static_cast<int>(items.size())))];
  }

 private:
  std::mt19937 random_;
};

/// Seeds from 1 on: as many as VELMORA_WALKS asks for, else `usual`.
std::vector<unsigned> walkSeeds(unsigned usual);

/// Names and tags of each row, with the tags read from the files: a row a text, as a folder may tell its
/// files in another order than before.
std::set<std::string> contentOf(HeadlessVelmora& of);
/// The table's artists, sorted.
std::vector<Text> artistsOf(const core::TrackTable& table);
/// Every column is as in a program that adds the folder for the first time.
void expectAsLoadedAfresh(HeadlessVelmora& program, const Text& folder);

}  // namespace velmora::test
