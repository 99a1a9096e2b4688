#include "journal/undo_journal.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "core/utf8.h"
#include "journal/journal_lines.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::journal {

namespace {

constexpr BytesView lineEnd = "\r\n";
constexpr std::size_t roomForLength = 8;  // characters, the blank behind the text included

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
  constexpr std::size_t digitsOfAll = 3;
  const Text digits = core::plain(static_cast<std::int64_t>(text.size()));
  if (digits.size() > digitsOfAll)
    out.append(u"#").append(digits).append(u":");
  else
    out.append(digitsOfAll - digits.size(), u'0').append(digits);
  out.append(text);
}

Text recordOf(const NewRecord& from) {
  Text record = core::ascii(from.kind);
  record.reserve(record.size() + from.first.size() + from.rest.size() + roomForLength);
  appendPrefixed(record, from.first);
  return record.append(u" ").append(from.rest);
}

}  // namespace

UndoJournal::UndoJournal(platform::Files& files, const core::Settings& settings, Text path)
    : files_(files), settings_(settings), path_(std::move(path)) {}

void UndoJournal::appendUndoRecord(std::string_view kind, TextView first, TextView rest) {
  append(lineOf(recordOf({kind, first, rest})));
}

void UndoJournal::appendUndoMarker(std::string_view kind) {
  append(lineOf(core::ascii(kind)));
  if (onMarker) onMarker(kind);
}

UndoJournal::Place UndoJournal::appendChange(std::initializer_list<NewRecord> records) {
  constexpr int mostUnsynced = 256;
  Bytes lines;
  for (const NewRecord& record : records) lines += lineOf(recordOf(record));
  const Group group(*this);
  changing_ = true;
  const Place place = append(lines);
  if (changed_ && ++unsynced_ < mostUnsynced) return place;
  try {
    sync();
  } catch (const platform::FileError&) {
    withdraw(place);
    throw;
  }
  changed_ = true;
  return place;
}

void UndoJournal::withdraw(const Place& place) {
  const Group group(*this);
  try {
    if (openEnd() != place.end) return;
    file_->cutTo(place.begin);
    end_ = place.begin;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The record stays, and undo finds nothing to take back.
  }
}

void UndoJournal::openGroup() {
  if (groups_++ > 0) return;
  changing_ = false;
  changed_ = false;
  told_ = false;
  files_.beforeRemoval([this] { sync(); });
}

void UndoJournal::closeGroup() noexcept {
  if (--groups_ > 0) return;
  files_.beforeRemoval(nullptr);
  try {
    if (dirty_ && file_) file_->flush();
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // All changes are made, and their records stand as far as the system is concerned.
  }
  dirty_ = false;
  unsynced_ = 0;
  file_.reset();
}

void UndoJournal::sync() {
  if (!dirty_ || !file_) return;
  try {
    file_->flush();
  } catch (const platform::FileError& cause) {
    fail(cause);
  }
  dirty_ = false;
  unsynced_ = 0;
}

/// Opens the file where it is not yet, and returns its length.
std::uint64_t UndoJournal::openEnd() {
  if (!file_) {
    file_ = exists() ? files_.open(path_, platform::OpenMode::ReadWrite) : files_.create(path_);
    end_ = 0;
  }
  return file_->size();
}

UndoJournal::Place UndoJournal::append(BytesView lines) {
  const Group group(*this);
  try {
    std::uint64_t begin = openEnd();
    // A line torn by a crash or a full disk must not swallow this one.
    if (begin > 0 && begin != end_) {
      char last = lineEnd.back();
      file_->readAt(begin - 1, {&last, 1});
      if (last != lineEnd.back()) {
        file_->writeAt(begin, lineEnd);
        begin += lineEnd.size();
      }
    }
    dirty_ = true;
    try {
      file_->writeAt(begin, lines);
    } catch (const platform::FileError&) {
      end_ = 0;
      file_->cutTo(begin);
      throw;
    }
    end_ = begin + lines.size();
    return {begin, end_};
  } catch (const platform::FileError& cause) {
    fail(cause);
  }
}

void UndoJournal::fail(const platform::FileError& cause) {
  // The innermost group is the append's own. With no other, no change hangs on a marker.
  const bool matters = groups_ > 1 || changing_;
  if (matters && !std::exchange(told_, true) && onNotRecorded) onNotRecorded(cause);
  throw NotRecorded(cause);
}

std::string UndoJournal::lastUndoMarker() const {
  std::string marker;
  if (!settings_.exists() || !exists()) return marker;
  const auto file = files_.open(path_, platform::OpenMode::Read);
  journal_lines::visitFromEnd(*file, [&marker](BytesView record, std::uint64_t) {
    const BytesView letters = record.substr(0, kind::length);
    if (std::ranges::find(kind::stopsOfUndo, letters) != kind::stopsOfUndo.end()) marker = letters;
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
  end_ = 0;
  files_.open(path_, platform::OpenMode::ReadWrite)->cutTo(offset);
}

std::uint64_t UndoJournal::size() const {
  return exists() ? files_.size(path_) : 0;
}

void UndoJournal::remove() {
  file_.reset();
  if (!exists()) return;
  try {
    files_.remove(path_);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A file that stays is no reason to stop: its rows are gone from the table.
  }
}

Text lengthPrefixed(TextView text) {
  Text prefixed;
  appendPrefixed(prefixed, text);
  return prefixed;
}

}  // namespace velmora::journal
