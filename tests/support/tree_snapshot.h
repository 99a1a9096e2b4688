#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>

#include "platform/text.h"

namespace velmora::test {

/// What stands in a folder tree at one moment: names, and sizes and hashes of the contents. Two are equal
/// when the trees are; a failed comparison prints both.
class TreeSnapshot {
 public:
  /// Links are told by where they lead, and not followed. A folder that is missing has no entries.
  static TreeSnapshot of(const Text& folder);

  bool operator==(const TreeSnapshot&) const = default;

  std::size_t files() const;
  /// Whether each file of `before` stands here still, under whatever name: the proof that nothing was lost.
  bool holdsAllContentsOf(const TreeSnapshot& before) const;

  friend std::ostream& operator<<(std::ostream& out, const TreeSnapshot& snapshot);

 private:
  struct Entry {
    char kind;  ///< 'f' file, 'd' folder, 'l' link, '?' other
    std::uint64_t size = 0;
    std::uint64_t hash = 0;
    auto operator<=>(const Entry&) const = default;
  };
  std::map<std::string, Entry> entries_;  // by the path within the tree
};

}  // namespace velmora::test
