#include "tags/id3v2_frames.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "platform/file_error.h"

namespace velmora::tags {

const std::vector<Bytes>& FrameTable::names() const {
  if (!names_.empty()) return names_;
  std::unordered_set<BytesView> seen;
  for (const TagFrame& frame : frames_)
    if (seen.insert(frame.name).second) names_.push_back(frame.name);
  return names_;
}

const Bytes& FrameTable::name(int index) const {
  static const Bytes none;
  return index >= 1 && index <= count() ? names()[static_cast<std::size_t>(index - 1)] : none;
}

int FrameTable::tags(BytesView name) const {
  return static_cast<int>(std::ranges::count(frames_, name, &TagFrame::name));
}

std::size_t FrameTable::placeOf(BytesView name, int index) const {
  for (std::size_t place = 0; place < frames_.size(); ++place)
    if (frames_[place].name == name && --index == 0) return place;
  throw platform::FileError(5, u"Invalid procedure call or argument");
}

const TagFrame& FrameTable::frame(BytesView name, int index) const {
  return frames_[placeOf(name, index)];
}

void FrameTable::add(TagFrame frame) {
  frames_.push_back(std::move(frame));
  names_.clear();
}

bool FrameTable::remove(BytesView name) {
  names_.clear();
  return std::erase_if(frames_, [name](const TagFrame& frame) { return frame.name == name; }) > 0;
}

void FrameTable::removeTag(BytesView name, int index) {
  frames_.erase(frames_.begin() + static_cast<std::ptrdiff_t>(placeOf(name, index)));
  names_.clear();
}

void FrameTable::clear() {
  frames_.clear();
  names_.clear();
  tail.clear();
}

}  // namespace velmora::tags
