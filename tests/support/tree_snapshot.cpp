#include "tests/support/tree_snapshot.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <vector>

#include "core/text.h"

namespace velmora::test {

namespace fs = std::filesystem;

namespace {

// FNV-1a.
std::uint64_t hashOf(BytesView bytes) {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
  return hash;
}

Bytes contentOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

TreeSnapshot TreeSnapshot::of(const Text& folder) {
  TreeSnapshot snapshot;
  const fs::path root = core::toBytes(folder);
  std::error_code missing;
  for (const auto& found : fs::recursive_directory_iterator(root, missing)) {
    Entry entry{'?'};
    if (found.is_symlink()) {
      entry = {'l', 0, hashOf(fs::read_symlink(found).native())};
    } else if (found.is_directory()) {
      entry.kind = 'd';
    } else if (found.is_regular_file()) {
      const Bytes content = contentOf(found);
      entry = {'f', content.size(), hashOf(content)};
    }
    snapshot.entries_.emplace(found.path().lexically_relative(root).native(), entry);
  }
  return snapshot;
}

std::size_t TreeSnapshot::files() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(entries_, [](const auto& entry) { return entry.second.kind == 'f'; }));
}

bool TreeSnapshot::holdsAllContentsOf(const TreeSnapshot& before) const {
  const auto contents = [](const TreeSnapshot& snapshot) {
    std::vector<Entry> found;
    for (const auto& [name, entry] : snapshot.entries_)
      if (entry.kind == 'f') found.push_back(entry);
    std::ranges::sort(found);
    return found;
  };
  return std::ranges::includes(contents(*this), contents(before));
}

std::ostream& operator<<(std::ostream& out, const TreeSnapshot& snapshot) {
  for (const auto& [name, entry] : snapshot.entries_)
    out << "\n  " << entry.kind << ' ' << name << ' ' << entry.size << ' ' << std::hex << entry.hash
        << std::dec;
  return out;
}

}  // namespace velmora::test
