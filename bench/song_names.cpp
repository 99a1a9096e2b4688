#include "bench/song_names.h"

#include <array>
#include <cctype>
#include <string_view>

namespace velmora::bench {
namespace {

constexpr std::array<std::string_view, 40> starts = {
    "al",  "ar",  "bel", "bra", "cor", "da",  "del", "dra", "el", "en",  "fa",  "fen", "gal", "gra",
    "hal", "hol", "i",   "ka",  "kor", "la",  "lin", "lo",  "ma", "mir", "na",  "nor", "o",   "or",
    "pal", "que", "ra",  "ro",  "sal", "sha", "ta",  "tor", "ul", "va",  "vel", "zo"};
constexpr std::array<std::string_view, 24> middles = {"ba",  "bri", "ca", "de", "di", "ga", "go", "la",
                                                      "le",  "li",  "lo", "ma", "mi", "na", "no", "ra",
                                                      "ren", "ri",  "ro", "sa", "ta", "ti", "vo", "xa"};
constexpr std::array<std::string_view, 20> ends = {"",    "",    "n",  "r",  "s",  "th", "nd",
                                                   "lle", "x",   "ck", "de", "ne", "rn", "sk",
                                                   "st",  "tte", "y",  "a",  "o",  "e"};
constexpr std::array<std::string_view, 24> plainWords = {
    "of",  "the", "and",  "in",   "my",   "night", "day",   "love", "road", "river", "light", "sun",
    "you", "me",  "blue", "fire", "rain", "home",  "heart", "long", "last", "one",   "two",   "dream"};
constexpr std::array<std::string_view, 12> nationalWords = {
    "Šuma", "Đačka", "Žive", "Čekam", "Über", "Größe", "Forêt", "Garçon", "Señor", "Øre", "Řeka", "Αγάπη"};
constexpr std::array<std::string_view, 14> genres = {"Rock", "Pop",       "Jazz",   "Techno",    "Trance",
                                                     "Folk", "Classical", "Metal",  "Ambient",   "House",
                                                     "Punk", "Blues",     "Reggae", "Soundtrack"};
/// Letters of Windows-1250 that are no UTF-8 on their own.
constexpr std::array<char, 6> loneBytes = {'\x8A', '\x9E', '\xE8', '\xF0', '\xC6', '\xFC'};

std::string capital(std::string word) {
  if (!word.empty()) word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
  return word;
}

std::string replaced(const std::string& text, char what, std::string_view with) {
  std::string result;
  for (const char c : text) {
    if (c == what)
      result += with;
    else
      result += c;
  }
  return result;
}

std::string twoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string AlbumMaker::word() {
  if (random_.chance(4)) return std::string(random_.pick(nationalWords));
  std::string made(random_.pick(starts));
  for (int i = random_.below(3); i > 0; --i) made += random_.pick(middles);
  made += random_.pick(ends);
  return capital(made);
}

std::string AlbumMaker::phrase(int mostWords) {
  std::string made = word();
  for (int i = random_.below(mostWords); i > 0; --i) {
    made += ' ';
    made += random_.chance(40) ? capital(std::string(random_.pick(plainWords))) : word();
  }
  return made;
}

std::string AlbumMaker::newArtist() {
  const int kind = random_.below(100);
  if (kind < 5) return word() + "-" + word();
  if (kind < 20) return "The " + word();
  if (kind < 24) return "DJ " + word();
  if (kind < 30) return word() + " & " + word();
  return phrase(2);
}

Album AlbumMaker::next() {
  if (artists_.empty() || random_.chance(60)) {
    artists_.push_back({newArtist(), std::string(random_.pick(genres))});
  }
  const Artist& artist = artists_[random_.next() % artists_.size()];
  Album album{artist.name, phrase(3), artist.genre, random_.between(1962, 2006), {}};
  const int songs = random_.between(7, 17);
  for (int i = 0; i < songs; ++i) {
    std::string title = phrase(4);
    if (random_.chance(6)) title += " (Live)";
    if (random_.chance(3)) title += " feat. " + word();
    album.songs.push_back(std::move(title));
  }
  return album;
}

std::string smallLetters(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

std::string asFileName(const std::string& text) {
  std::string result = text;
  for (char& c : result) {
    if (std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos) c = ' ';
  }
  return result;
}

std::string songFileName(const Song& song, Random& random) {
  const std::string number = twoDigits(song.track);
  std::string name;
  const int kind = random.below(100);
  if (kind < 52) {
    name = song.artist + " - " + song.title;
  } else if (kind < 60) {
    name = number + " - " + song.artist + " - " + song.title;
  } else if (kind < 68) {
    name = number + " - " + song.title;
  } else if (kind < 74) {
    name = number + ". " + song.title;
  } else if (kind < 80) {
    name = smallLetters(replaced(song.artist + " - " + song.title, ' ', "_"));
  } else if (kind < 84) {
    name = replaced(song.artist + " - " + song.title, ' ', "%20");
  } else if (kind < 90) {
    name = song.title;
  } else if (kind < 93) {
    name = song.artist + " - " + song.title + " - " + std::to_string(song.year);
  } else if (kind < 95) {
    name = "Track " + number + " - " + song.title;
  } else if (kind < 97) {
    name = smallLetters(song.artist) + "-" + smallLetters(song.title);
  } else {
    name = song.artist + " - " + song.title;
    name.insert(name.begin() + random.below(static_cast<int>(name.size())), random.pick(loneBytes));
  }
  return asFileName(name) + (random.chance(3) ? ".MP3" : ".mp3");
}

std::string otherFileName(Random& random) {
  constexpr std::array<std::string_view, 8> names = {"cover.jpg",      "folder.jpg",  "info.nfo",
                                                     "playlist.m3u",   "read me.txt", "Thumbs.db",
                                                     "back cover.png", "list.sfv"};
  return std::string(random.pick(names));
}

}  // namespace velmora::bench
