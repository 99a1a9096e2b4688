#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace velmora::core {

/// A vector with its free room where something was put in or taken out last: a row of such changes next to
/// each other costs the same however long the vector is.
template <typename Item>
class GapVector {
 public:
  std::size_t size() const { return items_.size() - (gapEnd_ - gapBegin_); }
  Item& operator[](std::size_t index) { return items_[place(index)]; }
  const Item& operator[](std::size_t index) const { return items_[place(index)]; }

  void push_back(Item item) {
    closeGap();
    items_.push_back(std::move(item));
    gapBegin_ = gapEnd_ = items_.size();
  }
  /// Cuts or lengthens to `size` items; new ones are as their type makes them.
  void resize(std::size_t size) {
    closeGap();
    items_.resize(size);
    gapBegin_ = gapEnd_ = size;
  }
  void insert(std::size_t index, Item item) {
    if (gapBegin_ == gapEnd_) openGap();
    moveGap(index);
    items_[gapBegin_++] = std::move(item);
  }
  void erase(std::size_t index) {
    moveGap(index);
    items_[gapEnd_++] = Item();
  }

 private:
  static constexpr std::size_t leastGap = 64;

  std::size_t place(std::size_t index) const {
    return index < gapBegin_ ? index : index + (gapEnd_ - gapBegin_);
  }
  /// Brings the gap before the item of this index.
  void moveGap(std::size_t index) {
    if (gapBegin_ == gapEnd_) gapBegin_ = gapEnd_ = index;
    while (gapBegin_ > index) items_[--gapEnd_] = std::move(items_[--gapBegin_]);
    while (gapBegin_ < index) items_[gapBegin_++] = std::move(items_[gapEnd_++]);
  }
  /// Takes the room away, for what works at the end.
  void closeGap() {
    if (gapBegin_ == gapEnd_) return;
    moveGap(size());
    items_.resize(gapBegin_);
    gapEnd_ = gapBegin_;
  }
  void openGap() {
    const std::size_t items = items_.size();
    items_.resize(items + std::max(leastGap, items / 2));
    gapBegin_ = items;
    gapEnd_ = items_.size();
  }

  std::vector<Item> items_;
  // Places without an item.
  std::size_t gapBegin_ = 0;
  std::size_t gapEnd_ = 0;
};

}  // namespace velmora::core
