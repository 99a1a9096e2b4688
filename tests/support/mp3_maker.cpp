#include "tests/support/mp3_maker.h"

#include <string>

#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text.h"

namespace velmora::test {

namespace {

Bytes field(TextView text, std::size_t width) {
  Bytes bytes = core::toCodePage(text);
  bytes.resize(width, '\0');
  return bytes;
}

Bytes utf16(TextView text) {
  Bytes bytes("\xFF\xFE");
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

}  // namespace

Bytes mpegFrames(int frames) {
  Bytes frame(mpegHeader);
  frame.resize(144 * 128'000 / 44'100, '\0');
  Bytes all;
  all.reserve(frame.size() * static_cast<std::size_t>(frames));
  for (int i = 0; i < frames; ++i) all += frame;
  return all;
}

Bytes id3v1Tag(const SongTags& tags, int genre, TextView comment) {
  Bytes tag("TAG");
  tag += field(tags.title, 30) + field(tags.artist, 30) + field(tags.album, 30) + field(tags.year, 4) +
         field(comment, 28);
  tag += '\0';
  tag += static_cast<char>(tags.track);
  tag += static_cast<char>(genre);
  return tag;
}

Id3v2Maker::Id3v2Maker(int version, TagEncoding encoding) : version_(version), encoding_(encoding) {}

Id3v2Maker& Id3v2Maker::values(const SongTags& tags) {
  const bool shortNames = version_ == 2;
  const char* yearName = version_ == 4 ? "TDRC" : "TYER";
  if (!tags.title.empty()) text(shortNames ? "TT2" : "TIT2", tags.title);
  if (!tags.artist.empty()) text(shortNames ? "TP1" : "TPE1", tags.artist);
  if (!tags.album.empty()) text(shortNames ? "TAL" : "TALB", tags.album);
  if (!tags.year.empty()) text(shortNames ? "TYE" : yearName, tags.year);
  if (tags.track != 0) text(shortNames ? "TRK" : "TRCK", core::plain(std::int64_t{tags.track}));
  if (!tags.genre.empty()) text(shortNames ? "TCO" : "TCON", tags.genre);
  return *this;
}

Bytes Id3v2Maker::encoded(TextView value) const {
  switch (encoding_) {
    case TagEncoding::Utf16:
      return utf16(value);
    case TagEncoding::Utf8:
      return core::toBytes(value);
    default:
      return core::toCodePage(value);
  }
}

Id3v2Maker& Id3v2Maker::text(BytesView name, TextView value) {
  return frame(name, Bytes(1, static_cast<char>(encoding_)) + encoded(value));
}

Id3v2Maker& Id3v2Maker::comment(TextView value) {
  const Bytes end(encoding_ == TagEncoding::Utf16 ? 2 : 1, '\0');
  return frame(version_ == 2 ? "COM" : "COMM",
               Bytes(1, static_cast<char>(encoding_)) + "eng" + encoded({}) + end + encoded(value));
}

Id3v2Maker& Id3v2Maker::picture(std::size_t bytes) {
  Bytes body = version_ == 2 ? Bytes("\0JPG\x03\0", 6) : Bytes("\0image/jpeg\0\x03\0", 14);
  body += "\xFF\xD8\xFF\xE0";
  for (std::size_t i = body.size(); i < bytes; ++i) body += static_cast<char>(i * 37 % 251);
  return frame(version_ == 2 ? "PIC" : "APIC", body);
}

Id3v2Maker& Id3v2Maker::frame(BytesView name, BytesView body) {
  frames_.push_back({Bytes(name), Bytes(body)});
  return *this;
}

Id3v2Maker& Id3v2Maker::padding(std::size_t bytes) {
  padding_ = bytes;
  return *this;
}

Bytes Id3v2Maker::bytes() const {
  return assemble(false);
}

Bytes Id3v2Maker::plainBytes() const {
  return assemble(true);
}

Bytes Id3v2Maker::assemble(bool plain) const {
  Bytes body;
  for (const Frame& each : frames_) {
    const auto size = static_cast<std::uint32_t>(each.body.size());
    body += each.name;
    if (version_ == 2)
      body += plain32(size).substr(1);
    else
      body += (version_ == 4 && !plain ? synchsafe32(size) : plain32(size)) + Bytes(2, '\0');
    body += each.body;
  }
  body.append(padding_, '\0');
  const auto size = static_cast<std::uint32_t>(body.size());
  return Bytes("ID3") + static_cast<char>(version_) + Bytes(2, '\0') +
         (plain ? plain32(size) : synchsafe32(size)) + body;
}

Bytes plain32(std::uint32_t number) {
  Bytes bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

Bytes synchsafe32(std::uint32_t number) {
  Bytes bytes;
  for (int shift = 21; shift >= 0; shift -= 7) bytes += static_cast<char>(number >> shift & 0x7F);
  return bytes;
}

}  // namespace velmora::test
