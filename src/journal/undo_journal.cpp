#include "journal/undo_journal.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "core/utf8.h"
#include "journal/journal_lines.h"
#include "platform/file_error.h"

namespace velmora::journal {

namespace {

constexpr std::array<std::string_view, 7> markerKinds = {"new", "fix", "dup", "st1", "st2", "dst", "fst"};
constexpr std::size_t kindLength = 3;
constexpr BytesView lineEnd = "\r\n";
constexpr std::size_t roomForLength = 8;    // characters, the blank behind the text included
constexpr std::size_t usualSnapshot = 400;  // characters

constexpr std::array<core::Column, 14> snapshotColumns = {
    &core::Track::pevacID3v1,  &core::Track::pesmaid3v1,     &core::Track::albumid3v1,
    &core::Track::godinaid3v1, &core::Track::brojtrakeid3v1, &core::Track::vrstaid3v1,
    &core::Track::pevacID3v2,  &core::Track::pesmaid3v2,     &core::Track::albumid3v2,
    &core::Track::godinaid3v2, &core::Track::brojtrakeid3v2, &core::Track::vrstaid3v2,
    &core::Track::nizdes,      &core::Track::crtapos};

/// The record between its quotes, with a line end. A line break that would look like the end of the record is
/// written as a blank, which leaves all lengths right.
Bytes lineOf(TextView record) {
  Bytes line = "\"";
  core::utf8::append(line, record);
  line += '"';
  for (std::size_t at = line.find('\n'); at != Bytes::npos; at = line.find('\n', at + 1))
    if (line[at + 1] == '"') line[at] = ' ';
  return line += lineEnd;
}

void appendPrefixed(Text& out, TextView text) {
  constexpr std::size_t fewestDigits = 3;
  const Text digits = core::plain(static_cast<std::int64_t>(text.size()));
  if (digits.size() < fewestDigits) out.append(fewestDigits - digits.size(), u'0');
  out.append(digits).append(text);
}

}  // namespace

UndoJournal::UndoJournal(platform::Files& files, const core::Settings& settings, Text path)
    : files_(files), settings_(settings), path_(std::move(path)) {}

void UndoJournal::appendUndoRecord(std::string_view kind, TextView first, TextView rest) {
  Text record = core::ascii(kind);
  record.reserve(record.size() + first.size() + rest.size() + roomForLength);
  appendPrefixed(record, first);
  record.append(u" ").append(rest);
  append(record);
}

void UndoJournal::appendUndoMarker(std::string_view kind) {
  append(core::ascii(kind));
  if (onMarker) onMarker(kind);
}

void UndoJournal::append(TextView record) {
  Bytes line;
  // A line torn by a crash or a full disk must not swallow this one. After an append of our own the end is
  // known.
  if (!std::exchange(whole_, false) && endsTorn()) line = lineEnd;
  line += lineOf(record);
  files_.append(path_, line);
  whole_ = true;
}

bool UndoJournal::endsTorn() const {
  if (!files_.fileExists(path_)) return false;
  const auto file = files_.open(path_, platform::OpenMode::Read);
  const std::uint64_t size = file->size();
  char last = lineEnd.back();
  if (size > 0) file->readAt(size - 1, {&last, 1});
  return last != lineEnd.back();
}

std::string UndoJournal::lastUndoMarker() const {
  std::string marker;
  if (!settings_.exists() || !exists()) return marker;
  const auto file = files_.open(path_, platform::OpenMode::Read);
  journal_lines::visitFromEnd(*file, [&marker](BytesView record, std::uint64_t) {
    const BytesView kind = record.substr(0, kindLength);
    if (std::ranges::find(markerKinds, kind) != markerKinds.end()) marker = kind;
    return marker.empty();
  });
  return marker;
}

bool UndoJournal::exists() const {
  return files_.fileExists(path_);
}

std::vector<Text> UndoJournal::readRecords() const {
  std::vector<Text> records;
  if (!exists()) return records;
  const Bytes bytes = files_.readAll(path_);
  for (const BytesView record : journal_lines::split(bytes)) records.push_back(core::fromBytes(record));
  return records;
}

void UndoJournal::visitFromNewest(
    const std::function<bool(const Text& record, std::uint64_t offset)>& visit) const {
  if (!settings_.exists() || !exists()) return;
  const auto file = files_.open(path_, platform::OpenMode::Read);
  journal_lines::visitFromEnd(*file, [&visit](BytesView record, std::uint64_t offset) {
    return visit(core::fromBytes(record), offset);
  });
}

void UndoJournal::cutAt(std::uint64_t offset) {
  if (!exists()) return;
  whole_ = false;
  files_.open(path_, platform::OpenMode::ReadWrite)->cutTo(offset);
}

std::uint64_t UndoJournal::size() const {
  return exists() ? files_.size(path_) : 0;
}

void UndoJournal::remove() {
  whole_ = false;
  if (!exists()) return;
  try {
    files_.remove(path_);
  } catch (const platform::FileError&) {
    // A file that stays is no reason to stop: its rows are gone from the table.
  }
}

Text lengthPrefixed(TextView text) {
  Text prefixed;
  appendPrefixed(prefixed, text);
  return prefixed;
}

Text rowSnapshot(const core::TrackTable& table, int row) {
  const core::Track& track = table.track(row);
  Text snapshot;
  snapshot.reserve(usualSnapshot);
  for (const core::Element* flag : {&track.procitan, &track.imaid3v1, &track.imaid3v2})
    snapshot += flag->isTrue() ? u'1' : u'0';
  for (const core::Column column : snapshotColumns) appendPrefixed(snapshot, (track.*column).text());
  appendPrefixed(snapshot, core::number(std::int64_t{table.brojfajlova()}));
  return snapshot;
}

}  // namespace velmora::journal
