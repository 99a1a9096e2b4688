#include "journal/undo_record.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "journal/record_kind.h"
#include "journal/undo_journal.h"

namespace velmora::journal {

namespace {

constexpr std::size_t lengthDigits = 3;
constexpr std::size_t mostDigits = 9;  // of the length of a field that three digits cannot tell

bool isDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

/// A whole number of decimal digits, blanks around it allowed.
template <typename Number>
std::optional<Number> parseNumber(TextView text) {
  text = core::trim(text);
  std::string digits;
  for (const char16_t character : text) {
    if (!isDigit(character)) return std::nullopt;
    digits += static_cast<char>(character);
  }
  Number number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

}  // namespace

std::optional<TextView> FieldReader::next() {
  TextView text = std::exchange(left_, {});
  std::size_t digits = lengthDigits;
  const bool longField = text.starts_with(u'#');
  if (longField) {
    text.remove_prefix(1);
    digits = text.find(u':');
    if (digits == 0 || digits > mostDigits) return std::nullopt;
  }
  if (text.size() < digits) return std::nullopt;
  std::size_t length = 0;
  for (const char16_t digit : text.substr(0, digits)) {
    if (!isDigit(digit)) return std::nullopt;
    length = length * 10 + (digit - u'0');
  }
  text.remove_prefix(digits + (longField ? 1 : 0));
  if (text.size() < length) return std::nullopt;
  left_ = text.substr(length);
  return text.substr(0, length);
}

namespace {

/// A snapshot of thousands of selected rows as older versions wrote it: more than three digits, with nothing
/// to tell where they end. Nothing but a blank follows it, so the count can be read where it fits the line
/// exactly.
std::optional<TextView> longSelection(TextView fields) {
  std::size_t digits = 0;
  std::size_t length = 0;
  while (digits < fields.size() && digits < mostDigits && isDigit(fields[digits]))
    length = length * 10 + (fields[digits++] - u'0');
  if (digits <= lengthDigits || fields.size() != digits + length + 1 || fields.back() != u' ')
    return std::nullopt;
  return fields.substr(digits, length);
}

/// A field that older versions did not write, empty then; nothing when more than that one is left.
std::optional<TextView> lastField(FieldReader& fields) {
  if (fields.left().empty()) return TextView();
  const auto field = fields.next();
  return fields.left().empty() ? field : std::nullopt;
}

}  // namespace

bool UndoRecord::is(std::string_view other) const {
  return std::ranges::equal(kind, other);
}

UndoRecord parseUndoRecord(TextView line) {
  UndoRecord record{line.substr(0, kind::length), {}};
  if (line.size() <= kind::length) return record;
  if (record.is(kind::selection))
    if (const auto snapshot = longSelection(line.substr(kind::length))) {
      record.data = UndoRecord::Data{*snapshot, {}};
      return record;
    }
  FieldReader fields(line.substr(kind::length));
  const std::optional<TextView> first = fields.next();
  if (first && fields.left().starts_with(u' '))
    record.data = UndoRecord::Data{*first, fields.left().substr(1)};
  return record;
}

std::optional<int> parseRow(TextView text) {
  const std::optional<int> row = parseNumber<int>(text);
  return row && *row >= 1 ? row : std::nullopt;
}

Text renamePayload(const core::TrackTable& table, int row, TextView identity) {
  return lengthPrefixed(core::number(std::int64_t{row})) + lengthPrefixed(table.path(row)) +
         lengthPrefixed(table.track(row).crtapos.text()) + lengthPrefixed(identity);
}

std::optional<RenamePayload> parseRenamePayload(TextView text) {
  FieldReader fields(text);
  const auto row = fields.next();
  const auto path = fields.next();
  const auto crtapos = fields.next();
  const auto identity = lastField(fields);
  if (!row || !path || !crtapos || !identity) return std::nullopt;
  const std::optional<int> rowNumber = parseRow(*row);
  if (!rowNumber || path->empty()) return std::nullopt;
  return RenamePayload{*rowNumber, Text(*path), Text(*crtapos), Text(*identity)};
}

Text deletedFile(std::uint64_t size, TextView path, TextView identity) {
  return lengthPrefixed(core::number(static_cast<std::int64_t>(size))) + lengthPrefixed(path) +
         lengthPrefixed(identity);
}

std::optional<DeletedFile> parseDeletedFile(TextView text) {
  FieldReader fields(text);
  const auto size = fields.next();
  const auto path = fields.next();
  const auto identity = lastField(fields);
  if (!size || !path || !identity || path->empty()) return std::nullopt;
  const auto bytes = parseNumber<std::uint64_t>(*size);
  if (!bytes) return std::nullopt;
  return DeletedFile{*bytes, Text(*path), Text(*identity)};
}

Text movedFile(TextView path, TextView identity, std::uint64_t size) {
  return lengthPrefixed(path) + lengthPrefixed(identity) +
         lengthPrefixed(core::number(static_cast<std::int64_t>(size)));
}

/// Older versions wrote the path alone, and no full path begins like a field.
std::optional<MovedFile> parseMovedFile(TextView text) {
  if (text.empty()) return std::nullopt;
  if (!isDigit(text.front()) && text.front() != u'#') return MovedFile{Text(text), {}, std::nullopt};
  FieldReader fields(text);
  const auto path = fields.next();
  const auto identity = fields.next();
  const auto size = fields.next();
  if (!path || !identity || !size || !fields.left().empty() || path->empty()) return std::nullopt;
  return MovedFile{Text(*path), Text(*identity), parseNumber<std::uint64_t>(*size)};
}

const std::array<core::Column, 12>& snapshotColumns() {
  using core::Track;
  static constexpr std::array<core::Column, 12> columns = {
      &Track::pevacID3v1,     &Track::pesmaid3v1,  &Track::albumid3v1,     &Track::godinaid3v1,
      &Track::brojtrakeid3v1, &Track::vrstaid3v1,  &Track::pevacID3v2,     &Track::pesmaid3v2,
      &Track::albumid3v2,     &Track::godinaid3v2, &Track::brojtrakeid3v2, &Track::vrstaid3v2};
  return columns;
}

Text rowSnapshot(const core::TrackTable& table, int row) {
  const core::Track& track = table.track(row);
  Text snapshot;
  constexpr std::size_t usualSnapshot = 400;  // characters
  snapshot.reserve(usualSnapshot);
  for (const core::Element* flag : {&track.procitan, &track.imaid3v1, &track.imaid3v2})
    snapshot += flag->isTrue() ? u'1' : u'0';
  for (const core::Column column : snapshotColumns()) snapshot += lengthPrefixed((track.*column).text());
  snapshot += lengthPrefixed(track.nizdes.text());
  snapshot += lengthPrefixed(track.crtapos.text());
  snapshot += lengthPrefixed(core::number(std::int64_t{table.brojfajlova()}));
  return snapshot;
}

std::optional<RowSnapshot> parseRowSnapshot(TextView text) {
  constexpr std::size_t flags = 3;
  if (text.size() < flags) return std::nullopt;
  RowSnapshot snapshot{.procitan = text[0] == u'1',
                       .imaid3v1 = text[1] == u'1',
                       .imaid3v2 = text[2] == u'1',
                       .tags = {},
                       .path = {},
                       .crtapos = {},
                       .brojfajlova = 0};
  FieldReader fields(text.substr(flags));
  const auto take = [&fields](Text& into) {
    const auto field = fields.next();
    if (field) into = *field;
    return field.has_value();
  };
  for (Text& tag : snapshot.tags)
    if (!take(tag)) return std::nullopt;
  Text count;
  if (!take(snapshot.path) || !take(snapshot.crtapos) || !take(count)) return std::nullopt;
  const auto rows = parseNumber<int>(count);
  if (!rows || !fields.left().empty() || snapshot.path.empty()) return std::nullopt;
  snapshot.brojfajlova = *rows;
  return snapshot;
}

}  // namespace velmora::journal
