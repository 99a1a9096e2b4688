#include "ui/list_box.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace velmora::ui {

const Text& ListBox::List(int index) const {
  static const Text empty;
  return valid(index) ? rows_[static_cast<std::size_t>(index)].text : empty;
}

void ListBox::setList(int index, Text text) {
  if (!valid(index)) return;
  rows_[static_cast<std::size_t>(index)].text = std::move(text);
  splice(index, 1, 1);
  changed();
}

int ListBox::ItemData(int index) const {
  return valid(index) ? rows_[static_cast<std::size_t>(index)].data : 0;
}

void ListBox::setItemData(int index, int data) {
  if (valid(index)) rows_[static_cast<std::size_t>(index)].data = data;
}

int ListBox::AddItem(Text text, int data) {
  int index = ListCount();
  if (sorted_) {
    const auto place = std::ranges::upper_bound(rows_, core::upper(text), {},
                                                [](const Row& row) { return core::upper(row.text); });
    index = static_cast<int>(place - rows_.begin());
  }
  insertItem(index, std::move(text), data);
  return index;
}

void ListBox::insertItem(int index, Text text, int data) {
  index = std::clamp(index, 0, ListCount());
  rows_.insert(rows_.begin() + index, Row{std::move(text), data, false});
  if (listIndex_ >= index) ++listIndex_;
  splice(index, 0, 1);
  changed();
}

void ListBox::RemoveItem(int index) {
  if (!valid(index)) return;
  if (Selected(index)) --selCount_;
  rows_.erase(rows_.begin() + index);
  if (listIndex_ > index) --listIndex_;
  if (listIndex_ >= ListCount()) listIndex_ = ListCount() - 1;
  topIndex_ = std::clamp(topIndex_, 0, std::max(ListCount() - 1, 0));
  splice(index, 1, 0);
  changed();
}

void ListBox::splice(int first, int removed, int inserted) {
  if (splice_.empty()) {
    splice_ = {first, removed, inserted};
    return;
  }
  // The joined change covers the hull of both; the rows between them count as replaced by themselves.
  const int oldEnd = splice_.first + splice_.inserted;
  const int hullFirst = std::min(splice_.first, first);
  const int hullEnd = std::max(oldEnd, first + removed);
  splice_.removed += (splice_.first - hullFirst) + (hullEnd - oldEnd);
  splice_.inserted = hullEnd - hullFirst - removed + inserted;
  splice_.first = hullFirst;
}

void ListBox::Clear() {
  if (rows_.empty()) return;
  refill({});
}

void ListBox::fill(std::vector<Text> texts) {
  std::vector<Row> rows;
  rows.reserve(texts.size());
  for (Text& text : texts) rows.push_back(Row{std::move(text), 0, false});
  refill(std::move(rows));
}

void ListBox::fillItems(std::vector<ListItem> items) {
  std::vector<Row> rows;
  rows.reserve(items.size());
  for (ListItem& item : items) rows.push_back(Row{std::move(item.text), item.data, false});
  refill(std::move(rows));
}

void ListBox::refill(std::vector<Row> rows) {
  splice(0, ListCount(), static_cast<int>(rows.size()));
  rows_ = std::move(rows);
  selCount_ = 0;
  listIndex_ = -1;
  topIndex_ = 0;
  changed();
}

bool ListBox::Selected(int index) const {
  return valid(index) && rows_[static_cast<std::size_t>(index)].selected;
}

bool ListBox::mark(int index, bool selected) {
  if (!valid(index) || Selected(index) == selected) return false;
  rows_[static_cast<std::size_t>(index)].selected = selected;
  selCount_ += selected ? 1 : -1;
  return true;
}

void ListBox::setSelected(int index, bool selected) {
  if (!valid(index)) return;
  if (selected && selection_ == Selection::Single)
    for (const int other : selectedIndexes())
      if (other != index) mark(other, false);
  const bool differs = mark(index, selected);
  if (selected) listIndex_ = index;
  if (!differs) return;
  changed();
  clicked();
}

std::vector<int> ListBox::selectedIndexes() const {
  std::vector<int> indexes;
  indexes.reserve(static_cast<std::size_t>(selCount_));
  if (selCount_ == 0) return indexes;
  for (int index = 0; index < ListCount(); ++index)
    if (rows_[static_cast<std::size_t>(index)].selected) indexes.push_back(index);
  return indexes;
}

void ListBox::clearSelection() {
  if (selCount_ == 0) return;
  for (Row& row : rows_) row.selected = false;
  selCount_ = 0;
  changed();
  clicked();
}

void ListBox::select(const std::vector<int>& indexes, int current) {
  if (!enabled()) return;
  if (selCount_ > 0)
    for (Row& row : rows_) row.selected = false;
  selCount_ = 0;
  for (const int index : indexes) mark(index, true);
  if (valid(current)) listIndex_ = current;
  changed();
  clicked();
}

void ListBox::setListIndex(int index) {
  if (index == listIndex_ || index < -1 || index >= ListCount()) return;
  if (selection_ == Selection::Single && index >= 0) return setSelected(index, true);
  listIndex_ = index;
  changed();
}

void ListBox::setTopIndex(int index) {
  assign(topIndex_, std::clamp(index, 0, std::max(ListCount() - 1, 0)));
}

}  // namespace velmora::ui
