#include "tags/id3v2_reader.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "core/code_page.h"
#include "tags/genre.h"

namespace velmora::tags {

namespace {

constexpr std::size_t blockBytes = 4096;
/// A body beyond this is no tag that anybody made.
constexpr std::uint64_t largestBody = 256ULL * 1024 * 1024;
constexpr std::size_t longBody = 300;  // bytes from which on a body is kept as it is

bool printable(char byte) {
  return byte >= 32 && byte <= 126;
}

Bytes MapFrameID(BytesView name) {
  static constexpr std::array<std::pair<BytesView, BytesView>, 8> names = {{{"TP1", "TPE1"},
                                                                            {"TT2", "TIT2"},
                                                                            {"TAL", "TALB"},
                                                                            {"COM", "COMM"},
                                                                            {"TRK", "TRCK"},
                                                                            {"TEN", "TENC"},
                                                                            {"TYE", "TYER"},
                                                                            {"TCO", "TCON"}}};
  const auto* found = std::ranges::find(names, name, &std::pair<BytesView, BytesView>::first);
  return found == names.end() ? Bytes() : Bytes(found->second);
}

/// A whole number of 0 to 255 with nothing but blanks around it.
std::optional<std::uint8_t> byteNumber(TextView text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == TextView::npos) return {};
  text = text.substr(first, text.find_last_not_of(u' ') - first + 1);
  unsigned number = 0;
  for (const char16_t character : text) {
    if (character < u'0' || character > u'9') return {};
    number = number * 10 + (character - u'0');
    if (number > 255) return {};
  }
  return static_cast<std::uint8_t>(number);
}

}  // namespace

std::optional<std::uint64_t> FindID3Position(SongBytes& song) {
  for (std::uint64_t start = 0; start < song.size(); start += blockBytes - 3) {
    const bool last = start + blockBytes >= song.size();
    // The last block leaves out the file's last byte.
    const auto length = last ? static_cast<std::size_t>(song.size() - start - 1) : blockBytes;
    const BytesView block = song.at(start, length);
    if (const auto found = block.find("ID3"); found != BytesView::npos) return start + found + 3;
    if (last || block.find("\xFF\xFB") != BytesView::npos) return {};
  }
  return {};
}

std::uint32_t tagSize(SongBytes& song, std::uint64_t position) {
  const BytesView field = song.at(position + 3, 4);
  return field.size() == 4 ? bigEndian(field) : 0;
}

FrameReader::FrameReader(SongBytes& song, std::uint64_t position)
    : song_(song), size_(tagSize(song, position)), at_(position + 7) {
  if (const BytesView version = song.at(position, 1); !version.empty())
    version_ = static_cast<std::uint8_t>(version[0]);
  ended_ = version_ < 2 || version_ > 4;
}

struct FrameReader::Header {
  Bytes name;
  std::uint64_t size;  // as the frame declares it
};

std::optional<FrameReader::Header> FrameReader::readHeader() {
  const bool shortForm = version_ == 2;
  const std::size_t nameBytes = shortForm ? 3 : 4;
  const std::size_t headerBytes = shortForm ? 6 : 10;
  const BytesView header = song_.at(at_, headerBytes);
  if (header.size() < headerBytes) return {};
  const BytesView name = header.substr(0, nameBytes);
  if (name.find_first_not_of('\0') == BytesView::npos) return {};
  const std::uint32_t size = bigEndian(header.substr(nameBytes, nameBytes));
  at_ += headerBytes;
  // Both counts are larger than the headers really are, so the last frames of a full tag are not read.
  total_ += shortForm ? 9 : 16;
  if (shortForm) return Header{MapFrameID(name), size};
  return Header{Bytes(name),
                static_cast<std::uint64_t>(std::abs(std::int64_t{static_cast<std::int32_t>(size)}))};
}

std::optional<FrameReader::Found> FrameReader::next() {
  if (ended_) return {};
  const auto header = readHeader();
  if (!header || total_ + header->size > size_ || header->size > largestBody) {
    ended_ = true;
    return {};
  }
  total_ += header->size;
  const std::uint64_t rest = song_.size() > at_ ? song_.size() - at_ : 0;
  const Found found{header->name, at_, static_cast<std::size_t>(std::min(header->size, rest))};
  at_ += found.length;
  // A position in the file against a size: a tag that does not begin the file ends early. Kept as it is.
  ended_ = at_ > size_;
  return found;
}

Bytes CleanFrameText(BytesView body) {
  if (body.size() >= longBody) return Bytes(body);
  Bytes clean;
  clean.reserve(body.size());
  std::ranges::copy_if(body, std::back_inserter(clean), printable);
  return clean;
}

Text frameText(BytesView body) {
  if (body.size() >= longBody) return core::fromCodePage(body);
  Text text;
  text.reserve(body.size());
  std::ranges::copy_if(body, std::back_inserter(text), printable);
  return text;
}

GenreText parseGenre(TextView body) {
  const auto open = body.find(u'(');
  const auto close = body.find(u')');
  if (open == TextView::npos || close == TextView::npos || close < open) return {{}, Text(body)};
  const auto code = byteNumber(body.substr(open + 1, close - open - 1));
  if (!code) return {{}, Text(body)};
  // A single character behind the parenthesis counts as no text.
  if (body.size() <= close + 2) return {code, GenreName(*code)};
  return {code, Text(body.substr(close + 1))};
}

}  // namespace velmora::tags
