#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "platform/text.h"

namespace velmora::base {

/// What the column of titles shows of a file's name: the name without its last four characters, and without
/// its artist part unless "Show Artist In Title List" is checked.
class TitleText {
 public:
  /// `artists` are the selected ones in the order of their rows.
  TitleText(bool withArtist, std::vector<Text> artists);
  TitleText(const TitleText&) = delete;
  TitleText& operator=(const TitleText&) = delete;

  /// The artist part ends at the first "-" behind the last of the artists that occurs in the name. A name
  /// that holds none of them loses its first character instead.
  Text of(TextView fileName) const;

 private:
  int dashOf(TextView fileName) const;
  TextView lastOfFew(TextView fileName) const;
  TextView lastOfMany(TextView fileName) const;

  bool withArtist_;
  std::vector<Text> artists_;
  // To find the artists in a name at a cost that does not grow with their number: the first characters at a
  // position are looked up to learn which lengths an artist that starts there can have, and each such stretch
  // of the name is then looked up whole.
  static constexpr std::size_t longestStart = 3;
  std::array<bool, longestStart + 1> startsOfLength_ = {};
  std::unordered_map<TextView, std::vector<std::size_t>> lengthsByStart_;
  std::unordered_map<TextView, std::size_t> lastRow_;
};

}  // namespace velmora::base
