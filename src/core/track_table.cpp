#include "core/track_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velmora::core {

namespace {

constexpr std::array<Column, 19> columns = {
    &Track::nizdes,      &Track::crtapos,        &Track::pevac,          &Track::pesma,
    &Track::procitan,    &Track::imaid3v1,       &Track::pevacID3v1,     &Track::pesmaid3v1,
    &Track::albumid3v1,  &Track::godinaid3v1,    &Track::brojtrakeid3v1, &Track::vrstaid3v1,
    &Track::imaid3v2,    &Track::pevacID3v2,     &Track::pesmaid3v2,     &Track::albumid3v2,
    &Track::godinaid3v2, &Track::brojtrakeid3v2, &Track::vrstaid3v2};

std::size_t indexOf(Column column) {
  return static_cast<std::size_t>(std::ranges::find(columns, column) - columns.begin());
}

constexpr std::size_t nizdesIndex = 0;
constexpr int maxRecounted = 16;  // rows that are worth counting one by one

}  // namespace

std::span<const Column> allColumns() {
  return columns;
}

std::span<const Column> tagColumns() {
  return std::span(columns).subspan(4);
}

TrackTable::TrackTable() {
  upperBounds_.fill(0);
}

int TrackTable::upperBound(Column column) const {
  return upperBounds_[indexOf(column)];
}

Track& TrackTable::track(int row) {
  if (hasRow(row)) return *tracks_[static_cast<std::size_t>(row - 1)];
  blank_ = Track();
  return blank_;
}

const Track& TrackTable::track(int row) const {
  static const Track blank;
  return hasRow(row) ? *tracks_[static_cast<std::size_t>(row - 1)] : blank;
}

const Element& TrackTable::element(Column column, int row) const {
  static const Element nothing;
  return row >= 1 && row <= upperBound(column) ? (*tracks_[static_cast<std::size_t>(row - 1)]).*column
                                               : nothing;
}

void TrackTable::setParts(int row, Text pevac, Text pesma) {
  if (!hasRow(row)) return;
  Track& changed = track(row);
  const bool otherArtist = pevac != changed.pevac.text();
  if (otherArtist) count(row, -1);
  changed.pevac = std::move(pevac);
  if (otherArtist) count(row, 1);
  changed.pesma = std::move(pesma);
}

void TrackTable::reserveRow(int row) {
  while (static_cast<int>(tracks_.size()) < row) tracks_.push_back(std::make_unique<Track>());
}

void TrackTable::appendPath(Text path) {
  reserveRow(rows_ + 1);
  tracks_[static_cast<std::size_t>(rows_)]->nizdes = std::move(path);
  ++rows_;
  upperBounds_[nizdesIndex] = rows_;
  count(rows_, 1);
}

void TrackTable::truncate(int rows) {
  rows = std::max(rows, 0);
  for (int row = rows; row < rows_; ++row) tracks_[static_cast<std::size_t>(row)]->nizdes = {};
  rows_ = std::min(rows_, rows);
  upperBounds_[nizdesIndex] = rows_;
  forgetCounts();
}

void TrackTable::resizeColumns() {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    for (int row = rows_; row < upperBounds_[i]; ++row)
      (*tracks_[static_cast<std::size_t>(row)]).*columns[i] = {};
    upperBounds_[i] = rows_;
  }
  tracks_.resize(static_cast<std::size_t>(rows_));
  forgetCounts();
}

void TrackTable::erase(Column column) {
  for (std::size_t i = 0; i < tracks_.size(); ++i) (*tracks_[i]).*column = {};
  upperBounds_[indexOf(column)] = -1;
  if (column == &Track::nizdes) rows_ = 0;
  forgetCounts();
}

void TrackTable::setColumn(Column column, std::vector<Element> elements) {
  const int count = static_cast<int>(elements.size());
  reserveRow(count);
  // Rows lie all over the memory, and a column is one word of each: asked for ahead, they are there in time.
  constexpr std::size_t ahead = 16;
  for (std::size_t i = 0; i < tracks_.size(); ++i) {
    if (i + ahead < tracks_.size()) __builtin_prefetch(&((*tracks_[i + ahead]).*column), 1);
    (*tracks_[i]).*column = i < elements.size() ? std::move(elements[i]) : Element();
  }
  upperBounds_[indexOf(column)] = count == 0 ? -1 : count;
  if (column == &Track::nizdes) rows_ = count;
  forgetCounts();
}

void TrackTable::removeRow(int row) {
  if (!hasRow(row)) return;
  const bool working = row <= brojfajlova_;
  count(row, -1);
  tracks_.erase(static_cast<std::size_t>(row - 1));
  for (int& bound : upperBounds_)
    if (bound >= row) --bound;
  --rows_;
  if (working) --brojfajlova_;
}

void TrackTable::insertRow(int row) {
  if (row < 1 || row > rows_ + 1) return;
  // The last row of the working list becomes the first of the tail.
  const bool passesOn = row <= brojfajlova_ && brojfajlova_ <= rows_;
  if (passesOn) count(brojfajlova_, -1);
  tracks_.insert(static_cast<std::size_t>(row - 1), std::make_unique<Track>());
  ++rows_;
  upperBounds_.fill(rows_);
  if (passesOn) count(brojfajlova_ + 1, 1);
  count(row, 1);
}

void TrackTable::setBrojfajlova(int rows) {
  // A row that is put back moves the border by one: that must not cost a count of all rows.
  const int first = std::min(rows, brojfajlova_) + 1;
  const int last = std::max(rows, brojfajlova_);
  if (last - first >= maxRecounted) forgetCounts();
  for (int row = first; countsValid_ && row <= last; ++row) count(row, -1);
  brojfajlova_ = rows;
  for (int row = first; countsValid_ && row <= last; ++row) count(row, 1);
}

TrackTable::ArtistRows TrackTable::artistRows(const Text& artist) const {
  if (!countsValid_) countArtists();
  const auto found = artistRows_.find(artist);
  return found == artistRows_.end() ? ArtistRows{} : found->second;
}

void TrackTable::count(int row, int change) {
  if (countsValid_ && hasRow(row)) countInto(row, change);
}

void TrackTable::countInto(int row, int change) const {
  ArtistRows& counts = artistRows_[track(row).pevac.text()];
  (row <= brojfajlova_ ? counts.working : counts.tail) += change;
}

void TrackTable::countArtists() const {
  artistRows_.clear();
  for (int row = 1; row <= rows_; ++row) countInto(row, 1);
  countsValid_ = true;
}

}  // namespace velmora::core
