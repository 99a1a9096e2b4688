#pragma once

#include <cstdint>
#include <vector>

#include "platform/text.h"

namespace velmora::tags {

/// One frame as it stands in a tag of version 3 or 4.
struct TagFrame {
  Bytes name;               ///< four characters
  std::uint16_t flags = 0;  ///< of the version of the tag
  Bytes body;               ///< without the header
};

/// The frames of an ID3v2 tag in their order, each with its raw bytes. Positions count from 1.
class FrameTable {
 public:
  const std::vector<TagFrame>& all() const { return frames_; }
  /// What stood behind the frames and was neither frame nor padding; written back behind them.
  Bytes tail;

  /// Number of distinct identifiers.
  int count() const { return static_cast<int>(names().size()); }
  /// Identifier by its place in the order of first appearance, 1 to count(); empty outside.
  const Bytes& name(int index) const;
  /// Number of frames with this identifier; 0 when it is unknown.
  int tags(BytesView name) const;
  /// One of the frames with this identifier. Throws FileError when there is none.
  const TagFrame& frame(BytesView name, int index) const;

  void add(TagFrame frame);
  /// Takes out all frames with this identifier; false when there is none.
  bool remove(BytesView name);
  /// Takes one frame out. Throws FileError when there is none.
  void removeTag(BytesView name, int index);
  void clear();

 private:
  std::size_t placeOf(BytesView name, int index) const;
  const std::vector<Bytes>& names() const;

  std::vector<TagFrame> frames_;
  mutable std::vector<Bytes> names_;  // made when asked for; empty again after a change
};

}  // namespace velmora::tags
