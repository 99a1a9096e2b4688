#include "base/title_text.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace velmora::base {

namespace {

constexpr int extensionLength = 4;     // dot included
constexpr std::size_t fewArtists = 4;  // that are looked for one by one faster than all at once

}  // namespace

TitleText::TitleText(bool withArtist, std::vector<Text> artists)
    : withArtist_(withArtist), artists_(std::move(artists)) {
  if (withArtist_ || artists_.size() <= fewArtists) return;
  for (std::size_t row = 0; row < artists_.size(); ++row) {
    const TextView artist = artists_[row];
    if (artist.empty() || !lastRow_.insert_or_assign(artist, row).second) continue;
    const TextView start = artist.substr(0, longestStart);
    startsOfLength_[start.size()] = true;
    std::vector<std::size_t>& lengths = lengthsByStart_[start];
    if (std::ranges::find(lengths, artist.size()) == lengths.end()) lengths.push_back(artist.size());
  }
}

Text TitleText::of(TextView fileName) const {
  if (withArtist_) return Text(core::dropRight(fileName, extensionLength));
  const auto cut = static_cast<std::size_t>(dashOf(fileName));
  const TextView rest = fileName.substr(std::min(cut, fileName.size()));
  return Text(core::trimLeft(core::dropRight(rest, extensionLength)));
}

/// Position of the dash from 1; 0 where the name has none behind its artist, 1 where it has no artist.
int TitleText::dashOf(TextView fileName) const {
  const TextView artist = artists_.size() <= fewArtists ? lastOfFew(fileName) : lastOfMany(fileName);
  return artist.empty() ? 1 : core::position(fileName, u"-", core::length(artist));
}

/// The last of the artists that occurs in the name; empty when none does.
TextView TitleText::lastOfFew(TextView fileName) const {
  const auto occurs = [fileName](const Text& artist) {
    return !artist.empty() && fileName.find(artist) != TextView::npos;
  };
  const auto last = std::find_if(artists_.rbegin(), artists_.rend(), occurs);
  return last == artists_.rend() ? TextView() : TextView(*last);
}

TextView TitleText::lastOfMany(TextView fileName) const {
  const TextView* last = nullptr;
  std::size_t lastRow = 0;
  for (std::size_t at = 0; at < fileName.size(); ++at) {
    const TextView rest = fileName.substr(at);
    for (std::size_t start = 1; start <= std::min(longestStart, rest.size()); ++start) {
      if (!startsOfLength_[start]) continue;
      const auto lengths = lengthsByStart_.find(rest.substr(0, start));
      if (lengths == lengthsByStart_.end()) continue;
      for (const std::size_t length : lengths->second) {
        const auto artist = length > rest.size() ? lastRow_.end() : lastRow_.find(rest.substr(0, length));
        if (artist == lastRow_.end() || (last && artist->second < lastRow)) continue;
        last = &artist->first;
        lastRow = artist->second;
      }
    }
  }
  return last ? *last : TextView();
}

}  // namespace velmora::base
