#include "tags/id3v2_reader.h"

#include <algorithm>
#include <cstdlib>

namespace velmora::tags {

namespace {

constexpr std::uint16_t frameUnsynchronised = 0x0002;  // version 4

bool allZero(BytesView bytes) {
  return bytes.find_first_not_of('\0') == BytesView::npos;
}

}  // namespace

bool isFrameName(BytesView name) {
  if (name.size() < 3) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    const bool letter = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    // A version 2 name in a version 3 tag, which some programs wrote.
    const bool filled = i == 3 && (c == ' ' || c == '\0');
    if (!letter && !filled) return false;
  }
  return true;
}

Bytes undoUnsynchronisation(BytesView bytes) {
  Bytes out;
  out.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    out += bytes[i];
    if (bytes[i] == '\xFF' && i + 1 < bytes.size() && bytes[i + 1] == '\0') ++i;
  }
  return out;
}

FrameReader::FrameReader(SongBytes& song, const TagHeader& tag, std::uint64_t limit, RealEnd realEnd)
    : song_(song), tag_(tag), at_(tag.start + TagHeader::bytes), limit_(limit), realEnd_(realEnd) {
  if (tag_.footer && limit_ >= at_ + TagHeader::bytes && tag_.publishedEnd() == limit_)
    limit_ -= TagHeader::bytes;
  if (tag_.version < 4 && tag_.unsynchronised() && limit_ > at_) {
    decoded_ = undoUnsynchronisation(song_.at(at_, static_cast<std::size_t>(limit_ - at_)));
    at_ = 0;
    limit_ = decoded_->size();
  }
  if (tag_.extended()) skipExtendedHeader();
}

void FrameReader::skipExtendedHeader() {
  const BytesView field = view(at_, 4);
  if (field.size() < 4 || isFrameName(field)) return;  // the mark is set, and there is none
  const std::uint64_t size = tag_.version == 4 ? sevenBitNumber(field).value_or(0) : bigEndian(field) + 4ULL;
  if (size >= 6 && reaches(at_ + size)) at_ += size;
}

BytesView FrameReader::view(std::uint64_t offset, std::size_t count) {
  if (!decoded_) return song_.at(offset, count);
  return offset >= decoded_->size() ? BytesView() : BytesView(*decoded_).substr(offset, count);
}

/// Whether the tag reaches as far as `end`.
bool FrameReader::reaches(std::uint64_t end) {
  if (end > limit_ && realEnd_) {
    limit_ = std::max(limit_, realEnd_(song_, tag_));
    realEnd_ = nullptr;
  }
  return end <= limit_;
}

/// Whether a frame, padding or the end of the tag stands here.
bool FrameReader::endsWell(std::uint64_t offset) {
  if (offset >= limit_) return offset == limit_;
  const BytesView next = view(offset, static_cast<std::size_t>(std::min<std::uint64_t>(4, limit_ - offset)));
  return allZero(next) || isFrameName(next);
}

std::uint64_t FrameReader::frameSize(BytesView header) {
  if (tag_.version == 2) return bigEndian(header.substr(3, 3));
  const std::uint32_t number = bigEndian(header.substr(4, 4));
  const auto plain = static_cast<std::uint64_t>(std::abs(std::int64_t{static_cast<std::int32_t>(number)}));
  if (tag_.version == 3) return plain;
  // Version 4 has seven bits in each byte, but some programs did not know.
  const auto published = sevenBitNumber(header.substr(4, 4));
  if (!published || *published == plain) return plain;
  const std::uint64_t body = at_ + TagHeader::bytes;
  return !endsWell(body + *published) && endsWell(body + plain) ? plain : *published;
}

std::optional<FrameReader::Found> FrameReader::next() {
  const std::size_t nameBytes = tag_.version == 2 ? 3 : 4;
  const std::size_t headerBytes = tag_.version == 2 ? 6 : 10;
  if (!tag_.readable() || (!realEnd_ && at_ >= limit_)) return {};
  BytesView header = view(at_, headerBytes);
  if (header.size() < headerBytes || !isFrameName(header.substr(0, nameBytes))) return {};
  if (!reaches(at_ + headerBytes)) return {};
  header = view(at_, headerBytes);
  Found found{Bytes(header.substr(0, nameBytes)), 0, at_ + headerBytes, 0, false};
  if (tag_.version > 2) found.flags = static_cast<std::uint16_t>(bigEndian(header.substr(8, 2)));
  const std::uint64_t size = frameSize(header);
  if (!reaches(found.offset + size)) return {};
  found.length = static_cast<std::size_t>(size);
  if (tag_.version == 4) {
    found.unsynchronised = tag_.unsynchronised() || (found.flags & frameUnsynchronised) != 0;
    found.flags &= static_cast<std::uint16_t>(~frameUnsynchronised);
  }
  at_ = found.offset + size;
  return found;
}

BytesView FrameReader::body(const Found& frame) {
  const BytesView bytes = view(frame.offset, frame.length);
  if (!frame.unsynchronised) return bytes;
  body_ = undoUnsynchronisation(bytes);
  return body_;
}

BytesView FrameReader::tail() {
  if (at_ >= limit_) return {};
  const auto rest = static_cast<std::size_t>(limit_ - at_);
  const BytesView start = view(at_, std::min<std::size_t>(4, rest));
  if (allZero(start)) return {};
  const BytesView all = view(at_, rest);
  return all.substr(0, all.find_last_not_of('\0') + 1);
}

std::uint64_t framesEnd(SongBytes& song, const TagHeader& tag, std::uint64_t limit) {
  const bool whole = !tag.readable() || (tag.version < 4 && tag.unsynchronised());
  FrameReader frames(song, tag, whole ? tag.start + TagHeader::bytes : limit);
  while (frames.next()) {
  }
  return frames.position();
}

}  // namespace velmora::tags
