#include "names/grammar.h"

#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"

namespace velmora::names {

namespace {

bool isDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

bool isLetter(char16_t character) {
  return character >= u'A' && character <= u'Z';
}

struct DigitRun {
  std::size_t begin, end;
  std::size_t length() const { return end - begin; }
};

/// The first run of digits at or behind `from`; of length 0 when there is none.
DigitRun digitRun(TextView text, std::size_t from) {
  while (from < text.size() && !isDigit(text[from])) ++from;
  std::size_t end = from;
  while (end < text.size() && isDigit(text[end])) ++end;
  return {from, end};
}

/// The name without the word "Track" where one separator stands between it and a digit. Every spelling equal
/// to the first one goes.
Text withoutTrackWord(TextView name) {
  constexpr TextView word = u"TRACK";
  const std::size_t at = core::upper(name).find(word);
  if (at == Text::npos) return Text(name);
  const std::size_t behindSeparator = at + word.size() + 1;
  if (behindSeparator >= name.size() || !isDigit(name[behindSeparator])) return Text(name);
  return core::replaceAll(name, name.substr(at, word.size()), {});
}

/// Gives a row the parts that a dash at this position of its name leaves.
void cutAt(core::TrackTable& table, int row, int dash) {
  const TextView name = core::paths::bareName(table.path(row));
  const int length = core::length(name);
  if (dash == 0)
    table.setParts(row, {}, Text(name));
  else if (dash == length)
    table.setParts(row, Text(core::dropRight(name, 1)), {});
  else
    table.setParts(row, Text(core::left(name, dash - 1)), Text(core::right(name, length - dash)));
}

}  // namespace

Text ImeFajla(const core::TrackTable& table, int row) {
  return Text(core::paths::bareName(table.path(row)));
}

void PevacIPesma(core::TrackTable& table, int row) {
  cutAt(table, row, core::intValue(table.track(row).crtapos.text()));
}

void setDash(core::TrackTable& table, int row, int dash) {
  table.track(row).crtapos = core::number(std::int64_t{dash});
  cutAt(table, row, dash);
}

Text SamoSlova(TextView text) {
  constexpr std::size_t fewestLetters = 3;
  Text letters;
  for (const char16_t character : core::upper(text))
    if (isLetter(character)) letters += character;
  return letters.size() < fewestLetters ? Text(text) : letters;
}

Text OcistiIme(TextView text) {
  constexpr TextView forbidden = u"/\\:*?><|\"";
  Text clean(text);
  for (char16_t& character : clean)
    if (forbidden.find(character) != TextView::npos) character = u' ';
  return clean;
}

int dashStart(TextView bareName, TextView artist) {
  return !artist.empty() && core::startsWithNoCase(bareName, artist) ? core::length(artist) : 1;
}

int dashAfterRename(TextView bareName, TextView oldArtist) {
  return core::position(bareName, u"-", dashStart(bareName, oldArtist));
}

RemovedNumber SkiniBroj(TextView bareName, int digits) {
  Text name = digits == 2 ? withoutTrackWord(bareName) : Text(bareName);
  for (DigitRun run = digitRun(name, 0); run.length() > 0; run = digitRun(name, run.end)) {
    if (run.length() == static_cast<std::size_t>(digits)) {
      Text number = name.substr(run.begin, run.length());
      name.erase(run.begin, run.length());
      return {std::move(number), std::move(name)};
    }
    // With the first run that does not fit, the word "Track" comes back.
    if (name.size() != bareName.size()) {
      name = bareName;
      run = digitRun(name, 0);
    }
  }
  return {{}, Text(bareName)};
}

}  // namespace velmora::names
