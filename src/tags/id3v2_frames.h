#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/text.h"

namespace velmora::tags {

/// The frames of an ID3v2 tag: distinct identifiers in order of first appearance, each with the bodies of its
/// frames. An identifier is four characters as a rule; the empty one stands for the frames of a version 2 tag
/// that have no name in version 3. Positions count from 1.
class FrameTable {
 public:
  /// Number of identifiers.
  int count() const { return static_cast<int>(frames_.size()); }
  /// Identifier at a place, 1 to count(); empty outside.
  const Bytes& name(int index) const;
  /// Whether `remove` will find this identifier.
  bool has(BytesView name) const { return find(name) != nullptr; }
  /// Number of frames with this identifier; 0 when it is unknown.
  int tags(BytesView name) const;
  /// Body of one frame. Throws FileError when there is none.
  const Bytes& body(BytesView name, int index) const;

  void add(BytesView name, Bytes body);
  /// Takes an identifier out with all its frames. Throws FileError when it is unknown.
  void remove(BytesView name);
  /// Takes one frame out. While others of the identifier remain, these are numbered anew, and the bodies of
  /// all other identifiers are lost from the table, whose counts stay; nothing here uses it, and it is kept
  /// as it is. The last one leaves its identifier without frames. Throws FileError when there is none.
  void removeTag(BytesView name, int index);
  void clear();

 private:
  struct Frame {
    Bytes name;
    std::vector<std::optional<Bytes>> bodies;  // without a value: lost by removeTag
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(BytesView name) const { return std::hash<BytesView>()(name); }
  };
  static constexpr std::size_t fewFrames = 16;
  static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);
  std::size_t placeOf(BytesView name) const;
  const Frame* find(BytesView name) const;

  std::vector<Frame> frames_;
  // Index in frames_; empty while there are few, which are looked through faster.
  std::unordered_map<Bytes, std::size_t, Hash, std::equal_to<>> places_;
};

}  // namespace velmora::tags
