#include "tags/mp3_header.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/file_error.h"
#include "platform/trace.h"
#include "tags/id3v2_place.h"

namespace velmora::tags {

namespace {

using LayerRates = std::array<std::int32_t, 3>;  // kilobits per second of layers 1, 2 and 3

struct RateRow {
  std::int32_t selector;
  LayerRates rates;
};

// By bit rate index, 1 to 14.
constexpr std::array<LayerRates, 14> mpeg1Rates = {{{32, 32, 32},
                                                    {64, 48, 40},
                                                    {96, 56, 48},
                                                    {128, 64, 56},
                                                    {160, 80, 64},
                                                    {192, 96, 80},
                                                    {224, 112, 96},
                                                    {256, 128, 112},
                                                    {288, 160, 128},
                                                    {320, 192, 160},
                                                    {352, 224, 192},
                                                    {384, 256, 224},
                                                    {416, 320, 256},
                                                    {448, 384, 320}}};

// By the bit rate that the reader holds already, not by the index of the header: in practice no row matches,
// and an MPEG-2 file shows a bit rate and a length of 0. The panel is meant to show just that.
constexpr std::array<RateRow, 14> mpeg2Rates = {{{1, {32, 32, 8}},
                                                 {10, {64, 48, 16}},
                                                 {11, {96, 56, 24}},
                                                 {100, {128, 64, 32}},
                                                 {101, {160, 80, 64}},
                                                 {110, {192, 96, 80}},
                                                 {111, {224, 112, 56}},
                                                 {1000, {256, 128, 64}},
                                                 {1001, {288, 160, 128}},
                                                 {1010, {320, 192, 160}},
                                                 {1011, {352, 224, 112}},
                                                 {1100, {384, 256, 128}},
                                                 {1101, {416, 320, 256}},
                                                 {1110, {448, 384, 320}}}};

constexpr std::array<std::int32_t, 4> mpeg1Frequencies = {44100, 48000, 32000, 0};
constexpr std::array<std::int32_t, 4> mpeg2Frequencies = {22050, 24000, 16000, 0};
constexpr std::array<const char16_t*, 4> modes = {u"Stereo", u"Joint Stereo", u"Dual Channel", u"Mono"};
constexpr std::array<std::uint8_t, 4> layers = {0, 3, 2, 1};

/// `width` bits of the header; position 1 is its top bit.
std::uint32_t bits(std::uint32_t header, int position, int width) {
  return header >> (33 - position - width) & ((1U << width) - 1);
}

std::int64_t secondsOf(std::uint64_t audioBytes, std::int32_t kilobits) {
  const std::uint64_t rate = static_cast<std::uint64_t>(kilobits) * 1000;
  const std::uint64_t whole = audioBytes * 8 / rate;
  const std::uint64_t twiceRest = audioBytes * 8 % rate * 2;
  const bool up = twiceRest > rate || (twiceRest == rate && whole % 2 == 1);  // a half goes to the even one
  return static_cast<std::int64_t>(whole + (up ? 1 : 0));
}

/// Where the first byte 0xFF at or behind `offset` lies.
std::optional<std::uint64_t> findFrame(SongBytes& song, std::uint64_t offset) {
  constexpr std::size_t largestStretch = 4096;
  // The frame stands right there as a rule, often in the block that was read for the tag.
  for (std::size_t stretch = 16; offset < song.size(); stretch = std::min(stretch * 4, largestStretch)) {
    const BytesView view = song.at(offset, stretch);
    if (view.empty()) return {};
    if (const auto found = view.find('\xFF'); found != BytesView::npos) return offset + found;
    offset += view.size();
  }
  return {};
}

}  // namespace

void clsMP3HeadReader::ReadMP3Header(platform::Files& files, const Text& path) {
  try {
    const auto file = files.open(path, platform::OpenMode::Read);
    SongBytes song(*file);
    read(song);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A file that cannot be read has no header to show.
  }
}

void clsMP3HeadReader::read(SongBytes& song) {
  const std::uint64_t tagEnd = ID3TagEnd(song);
  const auto frame = findFrame(song, tagEnd);
  if (!frame) return;
  const BytesView header = song.at(*frame, 4);
  if (header.size() == 4) parse(bigEndian(header), song.size() - tagEnd);
}

void clsMP3HeadReader::parse(std::uint32_t header, std::uint64_t audioBytes) {
  const bool mpeg1 = bits(header, 13, 1) == 1;
  Layer = layers[bits(header, 14, 2)];
  MPEG = mpeg1 ? u"MPEG-1" : u"MPEG-2";
  Frequency = (mpeg1 ? mpeg1Frequencies : mpeg2Frequencies)[bits(header, 21, 2)];
  setBitrate(bits(header, 17, 4));
  IsProtected = bits(header, 16, 1) == 1;
  IsPrivate = bits(header, 24, 1) == 1;
  Mode = modes[bits(header, 25, 2)];
  IsCopyright = bits(header, 29, 1) == 1;
  Length = Bitrate <= 0 ? 0 : secondsOf(audioBytes, Bitrate);
}

void clsMP3HeadReader::setBitrate(std::uint32_t index) {
  const LayerRates* rates = nullptr;
  if (MPEG == u"MPEG-1") {
    if (index >= 1 && index <= mpeg1Rates.size()) rates = &mpeg1Rates[index - 1];
  } else {
    const auto* row = std::ranges::find(mpeg2Rates, Bitrate, &RateRow::selector);
    if (row != mpeg2Rates.end()) rates = &row->rates;
  }
  if (!rates)
    Bitrate = 0;
  else if (Layer != 0)
    Bitrate = (*rates)[Layer - 1U];
}

}  // namespace velmora::tags
