#include "bench/song_bytes.h"

#include "core/text.h"
#include "tags/genre.h"
#include "tests/support/mp3_maker.h"

namespace velmora::bench {
namespace {

using test::Id3v2Maker;
using test::SongTags;
using test::TagEncoding;

SongTags tagsOf(const Song& song, Random& random) {
  SongTags tags{core::fromBytes(song.title),
                core::fromBytes(song.artist),
                core::fromBytes(song.album),
                core::fromBytes(std::to_string(song.year)),
                song.track,
                core::fromBytes(song.genre)};
  // Nobody fills in everything.
  if (random.chance(12)) tags.album.clear();
  if (random.chance(20)) tags.year.clear();
  if (random.chance(20)) tags.track = 0;
  const auto code = tags::genreCode(tags.genre);
  if (code && random.chance(60)) tags.genre = core::ascii("(" + std::to_string(*code) + ")");
  return tags;
}

/// The mix of writers that a collection of years has: mostly version 3, with a good deal of UTF-16.
Id3v2Maker someWriter(Random& random) {
  const int kind = random.below(100);
  if (kind < 12) return Id3v2Maker(2, random.chance(30) ? TagEncoding::Utf16 : TagEncoding::Latin1);
  if (kind < 78) return Id3v2Maker(3, random.chance(40) ? TagEncoding::Utf16 : TagEncoding::Latin1);
  if (kind < 90) return Id3v2Maker(4, TagEncoding::Utf8);
  return Id3v2Maker(4, TagEncoding::Latin1);
}

Bytes id3v2(const SongTags& tags, Random& random) {
  Id3v2Maker maker = someWriter(random);
  maker.values(tags);
  if (random.chance(25)) maker.comment(u"ripped with care");
  if (random.chance(8)) maker.picture(static_cast<std::size_t>(random.between(3000, 16000)));
  if (random.chance(70)) maker.padding(static_cast<std::size_t>(random.between(64, 2048)));
  return maker.bytes();
}

}  // namespace

std::string songBytes(const Song& song, Random& random) {
  const SongTags tags = tagsOf(song, random);
  std::string bytes;
  if (random.chance(80)) bytes += id3v2(tags, random);
  bytes += test::mpegFrames(random.between(6, 16));
  if (random.chance(70)) {
    bytes += test::id3v1Tag(tags, tags::genreCode(core::fromBytes(song.genre)).value_or(255));
  }
  return bytes;
}

std::string repairSongBytes(const Song& song, Random& random) {
  const SongTags tags{core::fromBytes(song.title),
                      core::fromBytes(song.artist),
                      core::fromBytes(song.album),
                      core::fromBytes(std::to_string(song.year)),
                      song.track,
                      core::fromBytes(song.genre)};
  return Id3v2Maker(3).values(tags).padding(1200).plainBytes() + test::mpegFrames(random.between(6, 16)) +
         test::id3v1Tag(tags, tags::genreCode(tags.genre).value_or(255));
}

}  // namespace velmora::bench
