#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace velmora::journal {

/// The stack that the journal is worked off with.
template <typename Item>
class Stek {
 public:
  /// The top item, or nothing on an empty stack.
  std::optional<Item> Pop() {
    if (items_.empty()) return std::nullopt;
    std::optional<Item> top(std::move(items_.back()));
    items_.pop_back();
    return top;
  }
  void Push(Item item) { items_.push_back(std::move(item)); }
  /// How many items there are.
  int Point() const { return static_cast<int>(items_.size()); }

 private:
  std::vector<Item> items_;
};

}  // namespace velmora::journal
