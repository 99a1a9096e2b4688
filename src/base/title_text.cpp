#include "base/title_text.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace velmora::base {

namespace {

constexpr std::size_t startLength = 3;
constexpr int extensionLength = 4;  // dot included

}  // namespace

TitleText::TitleText(bool withArtist, std::vector<Text> artists)
    : withArtist_(withArtist), artists_(std::move(artists)) {
  if (withArtist_) return;
  for (std::size_t i = artists_.size(); i-- > 0;)
    if (!artists_[i].empty()) byStart_[TextView(artists_[i]).substr(0, startLength)].push_back(i);
}

Text TitleText::of(TextView fileName) const {
  if (withArtist_) return Text(core::dropRight(fileName, extensionLength));
  const auto cut = static_cast<std::size_t>(dashOf(fileName));
  const TextView rest = fileName.substr(std::min(cut, fileName.size()));
  return Text(core::trimLeft(core::dropRight(rest, extensionLength)));
}

/// Position of the dash from 1; 0 where the name has none behind its artist, 1 where it has no artist.
int TitleText::dashOf(TextView fileName) const {
  const auto none = artists_.size();
  std::size_t last = none;
  for (std::size_t at = 0; at < fileName.size(); ++at) {
    const TextView rest = fileName.substr(at);
    for (std::size_t length = 1; length <= std::min(startLength, rest.size()); ++length) {
      const auto found = byStart_.find(rest.substr(0, length));
      if (found == byStart_.end()) continue;
      for (const std::size_t artist : found->second) {
        if (last != none && artist <= last) break;
        if (rest.starts_with(artists_[artist])) {
          last = artist;
          break;
        }
      }
    }
  }
  return last == none ? 1 : core::position(fileName, u"-", core::length(artists_[last]));
}

}  // namespace velmora::base
