#include "undo/songs.h"

#include <algorithm>

namespace velmora::undo {

void Songs::begin() {
  elsewhere_.clear();
  lost_.clear();
  rows_.reset();
}

const Text& Songs::now(const Text& path) const {
  const auto found = elsewhere_.find(path);
  return found == elsewhere_.end() ? path : found->second;
}

void Songs::isAt(const Text& path, const Text& place) {
  if (path == place)
    elsewhere_.erase(path);
  else
    elsewhere_.insert_or_assign(path, place);
}

int Songs::rowAt(int number, const Text& path) {
  if (path.empty()) return 0;
  const int row = numberNow(number);
  if (table_.hasRow(row) && table_.path(row) == path) return row;
  if (!rows_) {
    rows_.emplace();
    for (int any = table_.rows(); any >= 1; --any) rows_->insert_or_assign(table_.path(any), any);
  }
  const auto found = rows_->find(path);
  return found == rows_->end() ? 0 : found->second;
}

int Songs::numberNow(int number) const {
  return number -
         static_cast<int>(std::ranges::count_if(lost_, [number](int lost) { return lost < number; }));
}

void Songs::renamed(int row, const Text& path) {
  if (!rows_) return;
  rows_->erase(table_.path(row));
  rows_->insert_or_assign(path, row);
}

void Songs::restored(int number) {
  for (int& lost : lost_)
    if (lost >= number) ++lost;
  rows_.reset();
}

void Songs::lost(int number) {
  restored(number);
  lost_.push_back(number);
}

}  // namespace velmora::undo
