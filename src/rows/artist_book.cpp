#include "rows/artist_book.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "core/paths.h"
#include "rows/artist_lines.h"

namespace velmora::rows {

ArtistBook::ArtistBook(core::TrackTable& table, core::DataFolder& data, ui::Form1& form1)
    : table_(table), data_(data), form1_(form1) {}

void ArtistBook::DodajAutora(const Text& artist) {
  if (viewOpen()) {
    const int line = artist_lines::gained(form1_, table_, artist);
    if (form1_.List7.List(line) == artist_lines::oldKind) return;
  }
  if (add(artist) && table_.aktivniprozor != core::WindowAtWork::Processing && onAdded) onAdded(artist);
}

void ArtistBook::IzbaciAutora(const Text& artist) {
  if (table_.currentRow <= table_.brojfajlova() && table_.artistRows(artist).working == 0) remove(artist);
  if (viewOpen()) artist_lines::lost(form1_, table_, artist);
  if (table_.aktivniprozor != core::WindowAtWork::Processing && onRemoved) onRemoved(artist);
}

Text ArtistBook::FolderAutor(int row) const {
  const Text none = u" ";
  const Text& root = table_.dirzabazu;
  TextView below = table_.path(row);
  if (root.empty() || !below.starts_with(root)) return none;
  below.remove_prefix(root.size());
  if (root.back() != core::paths::separator) {
    if (!below.starts_with(core::paths::separator)) return none;
    below.remove_prefix(1);
  }
  const std::size_t genreEnd = below.find(core::paths::separator);
  if (genreEnd == TextView::npos) return none;
  below.remove_prefix(genreEnd + 1);
  const std::size_t artistEnd = below.find(core::paths::separator);
  return artistEnd == TextView::npos || artistEnd == 0 ? none : Text(below.substr(0, artistEnd));
}

void ArtistBook::collect(const std::function<bool(int row)>& eachRow) {
  std::vector<Text>& autori = table_.autori;
  autori.clear();
  std::unordered_set<Text> seen;
  for (int row = 1; row <= table_.workingRows(); ++row) {
    if (row > 1 && eachRow && !eachRow(row)) return;
    const Text& artist = table_.track(row).pevac.text();
    if (seen.insert(artist).second) autori.push_back(artist);
  }
}

bool ArtistBook::add(const Text& artist) {
  std::vector<Text>& autori = table_.autori;
  if (batch_) {
    if (!batch_->places.emplace(artist, autori.size()).second) return false;
    batch_->changed = true;
    autori.push_back(artist);
    return true;
  }
  if (std::ranges::find(autori, artist) != autori.end()) return false;
  autori.push_back(artist);
  save();
  return true;
}

void ArtistBook::remove(const Text& artist) {
  std::vector<Text>& autori = table_.autori;
  if (batch_) {
    const auto place = batch_->places.extract(artist);
    if (!place) return;
    batch_->gone.push_back(place.mapped());
    batch_->changed = true;
    return;
  }
  const auto found = std::ranges::find(autori, artist);
  if (found == autori.end()) return;
  autori.erase(found);
  save();
}

void ArtistBook::openBatch() {
  if (!batch_) {
    batch_.emplace(Index{});
    for (std::size_t i = 0; i < table_.autori.size(); ++i) batch_->places.emplace(table_.autori[i], i);
  }
  ++batch_->scopes;
}

void ArtistBook::closeBatch() {
  if (--batch_->scopes > 0) return;
  std::vector<Text>& autori = table_.autori;
  std::vector<bool> gone(autori.size());
  for (const std::size_t place : batch_->gone) gone[place] = true;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < autori.size(); ++i)
    if (!gone[i]) {
      if (kept != i) autori[kept] = std::move(autori[i]);
      ++kept;
    }
  autori.resize(kept);
  const bool changed = batch_->changed;
  batch_.reset();
  if (changed) save();
}

void ArtistBook::save() {
  data_.writeList(u"autori.txt", table_.autori);
}

}  // namespace velmora::rows
