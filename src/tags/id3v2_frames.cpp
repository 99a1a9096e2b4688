#include "tags/id3v2_frames.h"

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

const FrameTable::Frame* FrameTable::find(BytesView name) const {
  const auto place = places_.find(name);
  return place == places_.end() ? nullptr : &frames_[place->second];
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
  const auto [place, isNew] = places_.try_emplace(Bytes(name), frames_.size());
  if (isNew) frames_.push_back({Bytes(name), {}});
  frames_[place->second].bodies.emplace_back(std::move(body));
}

void FrameTable::remove(BytesView name) {
  const auto place = places_.find(name);
  if (place == places_.end()) noSuchFrame();
  const std::size_t removed = place->second;
  places_.erase(place);
  frames_.erase(frames_.begin() + static_cast<std::ptrdiff_t>(removed));
  for (auto& [other, index] : places_)
    if (index > removed) --index;
}

void FrameTable::removeTag(BytesView name, int index) {
  const auto place = places_.find(name);
  if (place == places_.end() || index < 1 || index > tags(name)) noSuchFrame();
  Frame& frame = frames_[place->second];
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
