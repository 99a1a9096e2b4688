#include "core/data_folder.h"

#include <algorithm>
#include <array>
#include <exception>
#include <unordered_set>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/saved_rows.h"
#include "core/text.h"
#include "platform/trace.h"

namespace velmora::core {

namespace {

struct ColumnFile {
  Column column;
  TextView name;
};

constexpr std::array<ColumnFile, 17> columnFiles = {{{&Track::nizdes, u"nizdes.txt"},
                                                     {&Track::crtapos, u"crtapos.txt"},
                                                     {&Track::procitan, u"procitan.txt"},
                                                     {&Track::imaid3v1, u"imaid3v1.txt"},
                                                     {&Track::pevacID3v1, u"pevacID3v1.txt"},
                                                     {&Track::pesmaid3v1, u"pesmaid3v1.txt"},
                                                     {&Track::albumid3v1, u"albumid3v1.txt"},
                                                     {&Track::godinaid3v1, u"godinaid3v1.txt"},
                                                     {&Track::brojtrakeid3v1, u"brojtrakeid3v1.txt"},
                                                     {&Track::vrstaid3v1, u"vrstaid3v1.txt"},
                                                     {&Track::imaid3v2, u"imaid3v2.txt"},
                                                     {&Track::pevacID3v2, u"pevacID3v2.txt"},
                                                     {&Track::pesmaid3v2, u"pesmaid3v2.txt"},
                                                     {&Track::albumid3v2, u"albumid3v2.txt"},
                                                     {&Track::godinaid3v2, u"godinaid3v2.txt"},
                                                     {&Track::brojtrakeid3v2, u"brojtrakeid3v2.txt"},
                                                     {&Track::vrstaid3v2, u"vrstaid3v2.txt"}}};

constexpr TextView niznomusicFile = u"niznomusic.txt";
constexpr TextView bazepesamaFile = u"bazepesama.txt";
constexpr TextView autoriFile = u"autori.txt";
constexpr TextView stariautoriFile = u"stariautori.txt";
constexpr TextView bazanizFile = u"bazaniz.txt";

/// The one spelling that a column's file is made in, whatever capitals it is asked for in.
TextView properName(TextView fileName) {
  const auto* found = std::ranges::find_if(
      columnFiles, [&](const ColumnFile& file) { return equalNoCase(file.name, fileName); });
  return found == columnFiles.end() ? fileName : found->name;
}

constexpr std::size_t bytesAroundText = 4;  // of a record: its quotes and line end

/// A column longer than `nizdes` has outlived the rows it spoke of: what is beyond them must not come to
/// speak of the files that are added next.
void takeColumn(TrackTable& table, Column column, std::vector<Element> elements) {
  const auto rows = static_cast<std::size_t>(table.rows());
  if (column != &Track::nizdes && elements.size() > rows) elements.resize(rows);
  table.setColumn(column, std::move(elements));
}

/// A row of which a tag column says nothing, because its file is missing, is as good as unread: its blanks
/// must not be taken for what the song says.
void forgetHalfRead(TrackTable& table) {
  const bool whole = std::ranges::all_of(
      tagColumns(), [&](Column column) { return table.upperBound(column) >= table.rows(); });
  if (!whole) table.erase(&Track::procitan);
}

/// Adds the records of rows `first` to `last` to `out`.
void writeRows(Bytes& out, const TrackTable& table, Column column, int first, int last) {
  // Rows and their texts lie all over the memory; asked for ahead, they are there in time.
  constexpr int rowAhead = 24;
  constexpr int textAhead = 12;
  const auto visit = [&](const auto& take) {
    for (int row = first; row <= last; ++row) {
      __builtin_prefetch(&table.element(column, row + rowAhead));
      __builtin_prefetch(&table.element(column, row + textAhead).text());
      take(table.element(column, row));
    }
  };
  std::size_t room = out.size();
  visit([&](const Element& element) { room += element.text().size() + bytesAroundText; });
  out.reserve(room);
  visit([&](const Element& element) { records::write(out, element); });
}

void writeTexts(Bytes& out, const std::vector<Text>& list) {
  std::size_t room = out.size();
  for (const Text& text : list) room += text.size() + bytesAroundText;
  out.reserve(room);
  for (const Text& text : list) records::writeText(out, text);
}

Bytes contentOf(const std::vector<Text>& list, const std::vector<Text>& more = {}) {
  Bytes content;
  writeTexts(content, list);
  writeTexts(content, more);
  return content;
}

/// Those of `theirs` that neither `ours` nor `known` holds.
std::vector<Text> unknownOf(const std::vector<Text>& theirs, const std::unordered_set<TextView>& ours) {
  std::vector<Text> unknown;
  for (const Text& text : theirs)
    if (!ours.contains(text)) unknown.push_back(text);
  return unknown;
}

std::unordered_set<TextView> setOf(const std::vector<Text>& first, const std::vector<Text>& second) {
  std::unordered_set<TextView> all(first.begin(), first.end());
  all.insert(second.begin(), second.end());
  return all;
}

void append(std::vector<Text>& to, std::vector<Text> more) {
  std::ranges::move(more, std::back_inserter(to));
}

}  // namespace

DataFolder::DataFolder(platform::Files& files, Settings& settings, Text programFolder)
    : files_(files),
      settings_(settings),
      columns_(files, paths::join(programFolder, u"Data")),
      mark_(files, paths::join(programFolder, u"velmora.changing")),
      namesTold_(!mark_.exists()),
      tagsTold_(namesTold_) {}

TextView DataFolder::fileOf(Column column) {
  const auto found = std::ranges::find(columnFiles, column, &ColumnFile::column);
  return found == columnFiles.end() ? TextView() : found->name;
}

void DataFolder::writeColumn(TextView fileName, const TrackTable& table, Column column) {
  Bytes content;
  writeRows(content, table, column, 1, table.upperBound(column));
  columns_.write({{Text(properName(fileName)), std::move(content)}});
}

void DataFolder::writeList(TextView fileName, const std::vector<Text>& list) {
  columns_.write({{Text(properName(fileName)), contentOf(list)}});
}

std::optional<std::vector<Element>> DataFolder::read(TextView fileName) {
  try {
    if (const auto content = columns_.read(fileName)) return records::readAll(*content);
  } catch (const std::exception& error) {
    platform::caughtSilently(error);
    // Such as too little memory for it: this column ends, and the others are read.
  }
  return std::nullopt;
}

std::vector<Element> DataFolder::readColumn(TextView fileName) {
  return read(fileName).value_or(std::vector<Element>());
}

std::vector<Text> DataFolder::readList(TextView fileName) {
  std::vector<Text> texts;
  for (const Element& element : readColumn(fileName)) texts.push_back(element.text());
  return texts;
}

// --- Saving -----------------------------------------------------------------------------------------------

void DataFolder::savenizove(const TrackTable& table) {
  mark();
  noticeOthers(table);
  const std::vector<Text> more = stillThere(others_.rows);
  const int working = table.workingRows();
  const auto rowsOf = [&](Column column) {
    Bytes content;
    if (column != &Track::nizdes && table.upperBound(column) <= 0) return content;
    writeRows(content, table, column, 1, working);
    if (column == &Track::nizdes)
      writeTexts(content, more);
    else
      records::writeNothing(content, more.size());
    writeRows(content, table, column, working + 1, table.rows());
    return content;
  };
  std::vector<ColumnFiles::Content> contents;
  for (const Column column : {&Track::nizdes, &Track::crtapos})
    contents.push_back({Text(fileOf(column)), rowsOf(column)});
  contents.push_back({Text(niznomusicFile), contentOf(table.niznomusic, stillThere(others_.otherFiles))});
  contents.push_back({Text(bazepesamaFile), contentOf(table.bazepesama, others_.folders)});
  contents.push_back({Text(autoriFile), contentOf(table.autori)});
  const std::int64_t count = table.brojfajlova() + std::ssize(more);
  namesTold_ = columns_.write(contents, [&] { return settings_.setNumber(u"ghb", count); });
  settings_.set(u"velicinasfiles", number(table.velicinasfiles));
  if (namesTold_) savedTail_ = table.rows() - working;
  if (!tagsTold_) mark_.set(savedTail_);
  unmark();
}

/// Row by row and not column by column, so that each row is fetched from memory once for all files. Rows of
/// the tail hold nothing, and there may be many: what holds nothing is only counted until something follows.
void DataFolder::SaveID3nizove(const TrackTable& table) {
  struct File {
    Column column;
    Bytes content;
    std::size_t nothing = 0;  // elements not yet in the content
  };
  std::vector<File> files;
  for (const Column column : tagColumns()) files.push_back({column, {}});
  for (int row = 1; row <= table.rows(); ++row) {
    const Track& track = table.track(row);
    for (File& file : files) {
      const Element& element = track.*file.column;
      if (element.isNothing()) {
        ++file.nothing;
        continue;
      }
      records::writeNothing(file.content, std::exchange(file.nothing, 0));
      records::write(file.content, element);
    }
  }
  mark();
  meetOthers();
  std::vector<ColumnFiles::Content> contents;
  for (File& file : files) {
    records::writeNothing(file.content, file.nothing);
    contents.push_back({Text(fileOf(file.column)), std::move(file.content)});
  }
  tagsTold_ = columns_.write(contents);
  unmark();
}

void DataFolder::beginChange() {
  namesTold_ = tagsTold_ = false;
  mark();
}

void DataFolder::mark() {
  if (!mark_.exists()) mark_.set(columns_.exists(fileOf(&Track::nizdes)) ? savedTail_ : 0);
}

/// With rows of another instance among them, the tag columns and the artists do not speak of all rows.
void DataFolder::unmark() {
  if (namesTold_ && tagsTold_ && !others_.met) mark_.remove();
}

// --- Another instance -------------------------------------------------------------------------------------

/// Columns of two instances side by side would give songs the tags of others: the mark then stays, whichever
/// of them saves last.
void DataFolder::meetOthers() {
  const bool met = std::ranges::any_of(
      columnFiles, [this](const ColumnFile& file) { return columns_.changedByOthers(file.name); });
  if (met) others_.met = others_.untold = true;
}

void DataFolder::noticeOthers(const TrackTable& table) {
  meetOthers();
  if (!columns_.changedByOthers(fileOf(&Track::nizdes)) && !columns_.changedByOthers(niznomusicFile)) return;
  TrackTable theirs;
  readLists(theirs);
  others_.met = others_.untold = true;

  std::unordered_set<TextView> ours(others_.rows.begin(), others_.rows.end());
  for (int row = 1; row <= table.rows(); ++row) ours.insert(table.path(row));
  std::vector<Text> rows;
  for (int row = 1; row <= workingRows(theirs, true); ++row)
    if (!ours.contains(theirs.path(row))) rows.push_back(theirs.path(row));
  append(others_.rows, stillThere(rows));
  append(others_.otherFiles,
         stillThere(unknownOf(theirs.niznomusic, setOf(table.niznomusic, others_.otherFiles))));
  append(others_.folders, unknownOf(theirs.bazepesama, setOf(table.bazepesama, others_.folders)));
}

/// What was renamed or filed away since is no row any more.
std::vector<Text> DataFolder::stillThere(const std::vector<Text>& paths) const {
  std::vector<Text> there;
  for (const Text& path : paths)
    if (files_.fileExists(path)) there.push_back(path);
  return there;
}

std::optional<std::size_t> DataFolder::takeNoticeOfOthers() {
  if (!std::exchange(others_.untold, false)) return std::nullopt;
  return others_.rows.size();
}

// --- Loading ----------------------------------------------------------------------------------------------

void DataFolder::readLists(TrackTable& table) {
  for (const Column column : {&Track::nizdes, &Track::crtapos}) {
    auto elements = read(fileOf(column));
    if (column == &Track::crtapos)
      namesTrue_ = elements.value_or(std::vector<Element>()).size() == static_cast<std::size_t>(table.rows());
    takeColumn(table, column, std::move(elements).value_or(std::vector<Element>()));
  }
  table.niznomusic = readList(niznomusicFile);
  table.bazepesama = readList(bazepesamaFile);
  table.bazaniz = readList(bazanizFile);
}

void DataFolder::readNames(TrackTable& table) {
  readLists(table);
  table.stariautori = readList(stariautoriFile);
  table.autori = readList(autoriFile);
  table.setBrojfajlova(table.rows());
  for (const Column column : {&Track::pesma, &Track::pevac})
    table.setColumn(column, std::vector<Element>(static_cast<std::size_t>(table.rows())));
}

void DataFolder::readTags(TrackTable& table) {
  const bool changing = mark_.exists();
  const auto rows = static_cast<std::size_t>(table.rows());
  bool agree = table.upperBound(&Track::crtapos) <= 0 || namesTrue_;
  for (const Column column : tagColumns()) {
    auto elements = read(fileOf(column));
    agree = agree && (!elements || elements->size() == rows);
    takeColumn(table, column, std::move(elements).value_or(std::vector<Element>()));
  }
  if (changing || !agree)
    for (const Column column : tagColumns()) table.erase(column);
  else
    forgetHalfRead(table);
  namesTrue_ = namesTrue_ && !changing;
  table.brojbaza = static_cast<int>(table.bazepesama.size());
  table.setBrojfajlova(workingRows(table, agree && !changing));
  savedTail_ = table.rows() - table.workingRows();
}

/// The rows that `ghb` tells, where it can be believed. Otherwise every row is the user's own save those of
/// the Music Base, which no batch may touch.
int DataFolder::workingRows(const TrackTable& table, bool agree) const {
  const auto stored = storedCount(settings_.get(u"ghb"));
  const auto marked = mark_.tail();
  if (agree && stored && *stored <= table.rows()) return *stored;
  const Text base = settings_.get(u"DirZaBazu");
  int tail = table.bazaniz.empty() && marked ? *marked : baseRowsAtEnd(table, base);
  if (tail == 0 && marked) tail = *marked;
  return std::max(table.rows() - tail, 0);
}

}  // namespace velmora::core
