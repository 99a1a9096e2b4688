#include "newmusic/new_music_rows.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "core/paths.h"
#include "core/text.h"
#include "newmusic/tag_values.h"

namespace velmora::newmusic {

namespace {

constexpr TextView folderRowStart = u"...\\";
constexpr TextView folderRowEnd = u"\\";

/// Keeps what it is given once each, in order.
class Distinct {
 public:
  void add(TextView text) {
    if (seen_.emplace(text).second) texts_.emplace_back(text);
  }
  void markSeen(TextView text) { seen_.emplace(text); }
  std::vector<Text> take() { return std::move(texts_); }

 private:
  std::unordered_set<Text> seen_;
  std::vector<Text> texts_;
};

}  // namespace

std::vector<Text> genresOf(const core::TrackTable& table, const std::function<void(int row)>& eachRow) {
  Distinct genres;
  for (int row = 1; row <= table.workingRows(); ++row) {
    if (eachRow) eachRow(row);
    if (const TextView genre = TagGenre(table, row); !genre.empty()) genres.add(genre);
  }
  return genres.take();
}

TextView lastFolder(const core::TrackTable& table, int row) {
  const TextView folder = core::dropRight(core::paths::folderPart(table.path(row)), 1);
  return core::paths::fileName(folder);
}

Text folderRow(TextView folder) {
  return Text(folderRowStart) + Text(folder) + Text(folderRowEnd);
}

Text folderOfRow(TextView row) {
  const TextView behind = row.substr(std::min(row.size(), folderRowStart.size()));
  return Text(core::dropRight(behind, core::length(folderRowEnd)));
}

NewMusicRows::NewMusicRows(const core::TrackTable& table) : table_(table) {
  for (int row = 1; row <= table.workingRows(); ++row) {
    byArtist_[table.track(row).pevac.text()].push_back(row);
    byGenre_[TagGenre(table, row)].push_back(row);
  }
}

const std::vector<int>& NewMusicRows::find(const RowsByText& map, TextView key) {
  static const std::vector<int> none;
  const auto found = map.find(key);
  return found == map.end() ? none : found->second;
}

std::vector<Text> NewMusicRows::artists(const std::vector<GenreRow>& genres) const {
  // Who has no genre, or any, comes in the order of the artists' own list, which does not look for doubles.
  std::vector<Text> artists;
  Distinct found;
  const auto takeAutori = [&](const std::unordered_set<TextView>* among) {
    for (const Text& artist : table_.autori)
      if (!among || among->contains(artist)) {
        found.markSeen(artist);
        artists.push_back(artist);
      }
  };
  for (const GenreRow& genre : genres) {
    if (genre.index != 1) continue;
    std::unordered_set<TextView> without;
    for (const int row : find(byGenre_, {})) without.insert(table_.track(row).pevac.text());
    takeAutori(&without);
  }
  for (const GenreRow& genre : genres)
    if (genre.index >= firstGenre)
      for (const int row : find(byGenre_, genre.text)) found.add(table_.track(row).pevac.text());
  for (Text& artist : found.take()) artists.push_back(std::move(artist));
  for (const GenreRow& genre : genres)
    if (genre.index == 0) takeAutori(nullptr);
  return artists;
}

std::vector<Text> NewMusicRows::artistsInFolder(TextView folder) const {
  Distinct artists;
  for (int row = 1; row <= table_.workingRows(); ++row)
    if (table_.path(row).find(folder) != Text::npos) artists.add(table_.track(row).pevac.text());
  return artists.take();
}

std::vector<Text> NewMusicRows::albums(const std::vector<GenreRow>& genres,
                                       const std::vector<Text>& artists) const {
  Distinct albums;
  for (const TextView special : {everySongs, withoutAlbumAndYear, TextView()}) albums.markSeen(special);
  const GenrePlaces places(genres);
  for (const Text& artist : artists)
    for (const int row : songs(places, {&artist, 1})) albums.add(TagAlbumYear(table_, row));
  return albums.take();
}

std::vector<int> NewMusicRows::songs(const std::vector<GenreRow>& genres,
                                     const std::vector<Text>& artists) const {
  return songs(GenrePlaces(genres), artists);
}

std::vector<int> NewMusicRows::songs(const GenrePlaces& places, std::span<const Text> artists) const {
  std::vector<std::pair<std::size_t, int>> found;  // place of the genre, row
  for (const Text& artist : artists) {
    for (const int row : find(byArtist_, artist)) {
      for (const std::size_t place : places.every) found.emplace_back(place, row);
      const auto own = places.byGenre.find(TagGenre(table_, row));
      if (own != places.byGenre.end()) found.emplace_back(own->second, row);
    }
  }
  std::ranges::stable_sort(found, {}, &std::pair<std::size_t, int>::first);
  std::vector<int> rows;
  rows.reserve(found.size());
  for (const auto& [place, row] : found) rows.push_back(row);
  return rows;
}

/// The genres as chosen are distinct; the row that stands for everything is asked for by itself.
NewMusicRows::GenrePlaces::GenrePlaces(const std::vector<GenreRow>& genres) {
  for (std::size_t place = 0; place < genres.size(); ++place) {
    const GenreRow& genre = genres[place];
    if (genre.index == 0)
      every.push_back(place);
    else
      byGenre.emplace(genre.index == 1 ? TextView() : TextView(genre.text), place);
  }
}

std::vector<Text> NewMusicRows::folders(const std::vector<int>& rows) const {
  Distinct folders;
  for (const int row : rows) folders.add(folderRow(lastFolder(table_, row)));
  return folders.take();
}

}  // namespace velmora::newmusic
