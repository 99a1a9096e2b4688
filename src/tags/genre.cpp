#include "tags/genre.h"

#include <array>
#include <string_view>
#include <unordered_map>

namespace velmora::tags {

namespace {

// By code from 0; 123 has no name, nor has any code behind the last.
// clang-format off
constexpr std::array<TextView, 148> names = {
    u"Blues", u"Classic Rock", u"Country", u"Dance", u"Disco", u"Funk", u"Grunge", u"Hip Hop", u"Jazz",
    u"Metal", u"New Age", u"Oldies", u"Other", u"Pop", u"R&B", u"Rap", u"Reggae", u"Rock", u"Techno",
    u"Industrial", u"Alternative", u"Ska", u"Death Metal", u"Pranks", u"Soundtrack", u"Euro - Techno",
    u"Ambient", u"Trip Hop", u"Vocal", u"Jazz - Funk", u"Fusion", u"Trance", u"Classical", u"Instrumental",
    u"Acid", u"House", u"Game", u"Sound Clip", u"Gospel", u"Noise", u"Alt.Rock", u"Bass", u"Soul", u"Punk",
    u"Space", u"Meditative", u"Instrumental Pop", u"Instrumental Rock", u"Ethnic", u"Gothic", u"Darkwave",
    u"Techno - Industrial", u"Electronic", u"Pop / Folk", u"Eurodance", u"Dream", u"Southern Rock",
    u"Comedy", u"Cult", u"Gangsta Rap", u"Top 40", u"Christian Rap", u"Pop / Funk", u"Jungle",
    u"Native American", u"Cabaret", u"New Wave", u"Psychedelic", u"Rave", u"Showtunes", u"Trailer",
    u"Lo - fi", u"Tribal", u"Acid Punk", u"Acid Jazz", u"Polka", u"Retro", u"Musical", u"Rock 'n'Roll",
    u"Hard Rock", u"Folk", u"Folk / Rock", u"National Folk", u"Swing", u"Fast Fusion", u"Bebob", u"Latin",
    u"Revival", u"Celtic", u"Blue Grass", u"Avant Garde", u"Gothic Rock", u"Progressive Rock",
    u"Psychedelic Rock", u"Symphonic Rock", u"Slow Rock", u"Big Band", u"Chorus", u"Easy Listening",
    u"Acoustic", u"Humour", u"Speech", u"Chanson", u"Opera", u"Chamber Music", u"Sonata", u"Symphony",
    u"Booty Bass", u"Primus", u"Pr0n Groove", u"Satire", u"Slow Jam", u"Club", u"Tango", u"Samba",
    u"Folklore", u"Ballad", u"Power Ballad", u"Rhythmic Soul", u"Freestyle", u"Duet", u"Punk Rock",
    u"Drum Solo", u"", u"Euro - House", u"Dance Hall", u"Goa", u"Drum & Bass", u"Club - House", u"Hardcore",
    u"Terror", u"Indie", u"Brit Pop", u"Negerpunk", u"Polsk Punk", u"Beat", u"Christian Gangsta Rap",
    u"Heavy Metal", u"Black Metal", u"Crossover", u"Contemporary Christian", u"Christian Rock", u"Merengue",
    u"Salsa", u"Thrash Metal", u"Anime", u"JPop", u"Synth Pop"
};
// clang-format on

}  // namespace

const Text& GenreName(int code) {
  static const std::array<Text, names.size()> texts = [] {
    std::array<Text, names.size()> made;
    for (std::size_t i = 0; i < names.size(); ++i) made[i] = names[i];
    return made;
  }();
  static const Text none;
  return code >= 0 && static_cast<std::size_t>(code) < texts.size() ? texts[static_cast<std::size_t>(code)]
                                                                    : none;
}

std::optional<int> genreCode(TextView name) {
  static const std::unordered_map<TextView, int> codes = [] {
    std::unordered_map<TextView, int> made;
    for (std::size_t code = 1; code < names.size(); ++code) made.emplace(names[code], static_cast<int>(code));
    return made;
  }();
  const auto found = codes.find(name);
  if (found == codes.end()) return {};
  return found->second;
}

}  // namespace velmora::tags
