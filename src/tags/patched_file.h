#pragma once

#include "platform/files.h"
#include "tags/song_bytes.h"

namespace velmora::tags {

/// A song as it would be with some of its bytes replaced, to be read before it is written so.
class PatchedFile final : public platform::OpenFile {
 public:
  /// `patch` stands for the bytes from `from` up to `to`. All must outlive this object.
  PatchedFile(SongBytes& song, std::uint64_t from, std::uint64_t to, BytesView patch)
      : song_(song), from_(from), to_(to), patch_(patch) {}

  std::uint64_t size() override { return song_.size() - (to_ - from_) + patch_.size(); }
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, BytesView bytes) override;
  void cutTo(std::uint64_t bytes) override;
  void flush() override {}

 private:
  BytesView at(std::uint64_t offset, std::size_t count);

  SongBytes& song_;
  std::uint64_t from_;
  std::uint64_t to_;
  BytesView patch_;
};

}  // namespace velmora::tags
