#include "tags/id3v2_frames.h"

#include <algorithm>
#include <utility>

#include "platform/file_error.h"

namespace velmora::tags {

namespace {

[[noreturn]] void noSuchFrame() {
  throw platform::FileError(5, u"Invalid procedure call or argument");
}

}  // namespace

const Bytes& FrameTable::name(int index) const {
  static const Bytes none;
  return index >= 1 && index <= count() ? frames_[static_cast<std::size_t>(index - 1)].name : none;
}

std::size_t FrameTable::placeOf(BytesView name) const {
  if (frames_.size() > fewFrames) {
    const auto place = places_.find(name);
    return place == places_.end() ? nowhere : place->second;
  }
  const auto frame = std::ranges::find(frames_, name, &Frame::name);
  return frame == frames_.end() ? nowhere : static_cast<std::size_t>(frame - frames_.begin());
}

const FrameTable::Frame* FrameTable::find(BytesView name) const {
  const std::size_t place = placeOf(name);
  return place == nowhere ? nullptr : &frames_[place];
}

int FrameTable::tags(BytesView name) const {
  const Frame* frame = find(name);
  return frame ? static_cast<int>(frame->bodies.size()) : 0;
}

const Bytes& FrameTable::body(BytesView name, int index) const {
  const Frame* frame = find(name);
  if (!frame || index < 1 || index > static_cast<int>(frame->bodies.size())) noSuchFrame();
  const auto& body = frame->bodies[static_cast<std::size_t>(index - 1)];
  if (!body) noSuchFrame();
  return *body;
}

void FrameTable::add(BytesView name, Bytes body) {
  std::size_t place = placeOf(name);
  if (place == nowhere) {
    place = frames_.size();
    if (place == 0) frames_.reserve(fewFrames);
    frames_.push_back({Bytes(name), {}});
    if (frames_.size() == fewFrames + 1)
      for (std::size_t i = 0; i < place; ++i) places_.emplace(frames_[i].name, i);
    if (frames_.size() > fewFrames) places_.emplace(name, place);
  }
  frames_[place].bodies.emplace_back(std::move(body));
}

void FrameTable::remove(BytesView name) {
  const std::size_t removed = placeOf(name);
  if (removed == nowhere) noSuchFrame();
  if (frames_.size() > fewFrames) places_.erase(places_.find(name));
  frames_.erase(frames_.begin() + static_cast<std::ptrdiff_t>(removed));
  if (frames_.size() <= fewFrames) places_.clear();
  for (auto& [other, index] : places_)
    if (index > removed) --index;
}

void FrameTable::removeTag(BytesView name, int index) {
  const std::size_t place = placeOf(name);
  if (place == nowhere || index < 1 || index > tags(name)) noSuchFrame();
  Frame& frame = frames_[place];
  frame.bodies.erase(frame.bodies.begin() + (index - 1));
  if (frame.bodies.empty()) return;
  for (Frame& other : frames_)
    if (&other != &frame)
      for (auto& body : other.bodies) body.reset();
}

void FrameTable::clear() {
  frames_.clear();
  places_.clear();
}

}  // namespace velmora::tags
