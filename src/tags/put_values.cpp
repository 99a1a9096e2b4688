#include "tags/put_values.h"

#include <cstdint>

#include "core/number_text.h"
#include "core/text.h"
#include "tags/genre.h"

namespace velmora::tags {

namespace {

constexpr std::uint8_t noGenre = 255;

std::uint8_t trackByte(const Text& text) {
  const double rounded = core::roundHalfEven(core::value(text));
  return rounded >= 0 && rounded <= 255 ? static_cast<std::uint8_t>(rounded) : std::uint8_t{0};
}

/// The code to store for a genre's name; `otherwise` for one that the table lacks.
std::uint8_t codeOf(const Text& genre, std::uint8_t otherwise) {
  if (core::trim(genre).empty()) return noGenre;
  return static_cast<std::uint8_t>(genreCode(genre).value_or(otherwise));
}

std::optional<Text> unlessEmpty(const Text& text) {
  return text.empty() ? std::nullopt : std::optional(text);
}

void setGenre(cMP3ID3v2& tag, const Text& genre) {
  if (const auto code = genreCode(genre); code && !core::trim(genre).empty())
    tag.setGenre(static_cast<std::uint8_t>(*code));
  else
    tag.setOtherGenreName(Text(core::trim(genre).empty() ? TextView() : TextView(genre)));
}

/// What a user reads as no track.
bool noTrack(const Text& track) {
  return track.empty() || track == u"0";
}

}  // namespace

bool putValues(cMP3ID3v1& tag, const FieldValues& values) {
  bool differs = false;
  const auto put = [&differs](auto& field, const auto& value) {
    if (field == value) return;
    field = value;
    differs = true;
  };
  if (values.title) put(tag.Title, *values.title);
  if (values.artist) put(tag.Artist, *values.artist);
  if (values.album) put(tag.Album, *values.album);
  if (values.year) put(tag.Year, *values.year);
  if (values.track) put(tag.Track, trackByte(*values.track));
  if (values.genre && *values.genre != GenreName(tag.Genre)) put(tag.Genre, codeOf(*values.genre, tag.Genre));
  return differs;
}

bool putValues(cMP3ID3v2& tag, const FieldValues& values) {
  bool differs = false;
  const auto put = [&](const Text& now, void (cMP3ID3v2::*set)(const Text&),
                       const std::optional<Text>& value) {
    if (!value || *value == now) return;
    (tag.*set)(*value);
    differs = true;
  };
  put(tag.Title(), &cMP3ID3v2::setTitle, values.title);
  put(tag.Artist(), &cMP3ID3v2::setArtist, values.artist);
  put(tag.Album(), &cMP3ID3v2::setAlbum, values.album);
  put(tag.Year(), &cMP3ID3v2::setYear, values.year);
  if (values.track && !(noTrack(*values.track) && noTrack(tag.Track())))
    put(tag.Track(), &cMP3ID3v2::setTrack, values.track);
  if (values.genre && *values.genre != tag.OtherGenreName()) {
    setGenre(tag, *values.genre);
    differs = true;
  }
  return differs;
}

FieldValues valuesOf(const cMP3ID3v1& tag) {
  return {.title = unlessEmpty(tag.Title),
          .artist = unlessEmpty(tag.Artist),
          .album = unlessEmpty(tag.Album),
          .year = unlessEmpty(tag.Year),
          .track = unlessEmpty(tag.Track == 0 ? Text() : core::plain(std::int64_t{tag.Track})),
          .genre = unlessEmpty(Text(GenreName(tag.Genre)))};
}

FieldValues valuesOf(const cMP3ID3v2& tag) {
  return {.title = unlessEmpty(tag.Title()),
          .artist = unlessEmpty(tag.Artist()),
          .album = unlessEmpty(tag.Album()),
          .year = unlessEmpty(tag.Year()),
          .track = unlessEmpty(noTrack(tag.Track()) ? Text() : tag.Track()),
          .genre = unlessEmpty(tag.OtherGenreName())};
}

FieldValues joined(FieldValues values, const FieldValues& others) {
  const auto join = [&](auto field) {
    if (!(values.*field)) values.*field = others.*field;
  };
  for (const auto field : {&FieldValues::title, &FieldValues::artist, &FieldValues::album, &FieldValues::year,
                           &FieldValues::track, &FieldValues::genre})
    join(field);
  return values;
}

}  // namespace velmora::tags
