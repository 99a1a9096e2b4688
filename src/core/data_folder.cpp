#include "core/data_folder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/text.h"
#include "platform/file_error.h"
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

constexpr std::size_t bytesAroundText = 4;  // of a record: its quotes and line end

/// A column longer than `nizdes` has outlived the rows it spoke of: what is beyond them must not come to
/// speak of the files that are added next.
void takeColumn(TrackTable& table, Column column, std::vector<Element> elements) {
  const auto rows = static_cast<std::size_t>(table.rows());
  if (column != &Track::nizdes && elements.size() > rows) elements.resize(rows);
  table.setColumn(column, std::move(elements));
}

/// Whether the rows of the table end with the whole Music Base list.
bool endsWithTail(const TrackTable& table) {
  const int tail = static_cast<int>(table.bazaniz.size());
  if (tail > table.rows()) return false;
  for (int i = tail; i > 0; --i)
    if (table.path(table.rows() - tail + i) != table.bazaniz[static_cast<std::size_t>(i - 1)]) return false;
  return true;
}

/// A row of which a tag column says nothing, because its file is missing or cut short, is as good as unread:
/// its blanks must not be taken for what the song says.
void forgetHalfRead(TrackTable& table) {
  int whole = table.rows();
  for (const Column column : tagColumns())
    if (column != &Track::procitan) whole = std::min(whole, std::max(table.upperBound(column), 0));
  for (int row = whole + 1; row <= table.upperBound(&Track::procitan); ++row) table.track(row).procitan = {};
}

/// The working list that a stored count stands for. A count that the rows cannot bear comes from a damaged
/// file, and one that was stored in a change that did not end may be of other rows; then every row is taken
/// as the user's own save those of the Music Base, which no batch may touch. These are the Music Base list
/// as it was found last, or else as many rows as they were before the change.
int workingRows(const TrackTable& table, int stored, std::optional<int> markedTail) {
  if (!markedTail && stored <= table.rows()) return std::max(stored, 0);
  const int found = endsWithTail(table) ? static_cast<int>(table.bazaniz.size()) : 0;
  return std::max(table.rows() - (found > 0 ? found : markedTail.value_or(0)), 0);
}

}  // namespace

DataFolder::DataFolder(platform::Files& files, Settings& settings, Text programFolder)
    : files_(files),
      settings_(settings),
      folder_(paths::join(programFolder, u"Data")),
      changing_(paths::join(programFolder, u"velmora.changing")),
      namesTold_(!files_.fileExists(changing_)),
      tagsTold_(namesTold_) {}

TextView DataFolder::fileOf(Column column) {
  const auto found = std::ranges::find(columnFiles, column, &ColumnFile::column);
  return found == columnFiles.end() ? TextView() : found->name;
}

Text DataFolder::path(TextView fileName) const {
  for (const ColumnFile& file : columnFiles)
    if (equalNoCase(file.name, fileName)) fileName = file.name;
  Text exact = paths::join(folder_, fileName);
  if (files_.fileExists(exact) || !files_.folderExists(folder_)) return exact;
  try {
    for (const platform::FolderEntry& entry : files_.list(folder_).entries)
      if (entry.kind == platform::EntryKind::File && equalNoCase(entry.name, fileName))
        return paths::join(folder_, entry.name);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A folder that cannot be listed may still let its files be read.
  }
  return exact;
}

void DataFolder::writeColumn(TextView fileName, const TrackTable& table, Column column) {
  const int rows = table.upperBound(column);
  // Rows and their texts lie all over the memory; asked for ahead, they are there in time.
  constexpr int rowAhead = 24;
  constexpr int textAhead = 12;
  const auto visit = [&](const auto& take) {
    for (int row = 1; row <= rows; ++row) {
      __builtin_prefetch(&table.element(column, row + rowAhead));
      __builtin_prefetch(&table.element(column, row + textAhead).text());
      take(table.element(column, row));
    }
  };
  std::size_t room = 0;
  visit([&](const Element& element) { room += element.text().size() + bytesAroundText; });
  Bytes content;
  content.reserve(room);
  visit([&](const Element& element) { records::write(content, element); });
  store(fileName, content);
}

void DataFolder::writeList(TextView fileName, const std::vector<Text>& list) {
  std::size_t room = 0;
  for (const Text& text : list) room += text.size() + bytesAroundText;
  Bytes content;
  content.reserve(room);
  for (const Text& text : list) records::writeText(content, text);
  store(fileName, content);
}

void DataFolder::store(TextView fileName, BytesView content) {
  if (!content.empty()) {
    try {
      files_.makeFolder(folder_);
      files_.writeAll(path(fileName), content);
      return;
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // A file half old and half new would give rows the words of others: rather none.
    }
  }
  remove(fileName);
}

void DataFolder::remove(TextView fileName) {
  try {
    const Text file = path(fileName);
    if (files_.fileExists(file)) files_.remove(file);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // Nothing more can be done about it.
  }
}

std::vector<Element> DataFolder::readColumn(TextView fileName) const {
  try {
    return records::readAll(files_.readAll(path(fileName)));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return {};
  }
}

std::vector<Text> DataFolder::readList(TextView fileName) const {
  try {
    return records::readTexts(files_.readAll(path(fileName)));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return {};
  }
}

void DataFolder::savenizove(const TrackTable& table) {
  mark();
  settings_.setNumber(u"ghb", table.brojfajlova());
  writeColumn(fileOf(&Track::nizdes), table, &Track::nizdes);
  writeColumn(fileOf(&Track::crtapos), table, &Track::crtapos);
  writeList(niznomusicFile, table.niznomusic);
  writeList(bazepesamaFile, table.bazepesama);
  writeList(autoriFile, table.autori);
  savedTail_ = table.rows() - table.workingRows();
  namesTold_ = true;
  tagsTold_ ? unmark() : writeMark(savedTail_);
}

/// All columns get one length, so that a row that was read into a column without storage is kept. Row by row
/// and not column by column, so that each row is fetched from memory once for all files. Rows of the tail
/// hold nothing, and there may be many: what holds nothing is only counted until something follows.
void DataFolder::SaveID3nizove(const TrackTable& table) {
  struct File {
    Column column;
    Bytes content;
    std::size_t nothing = 0;  // elements not yet in the content
  };
  std::vector<File> files;
  int last = table.rows();
  while (last > 0 && table.track(last).procitan.isNothing()) --last;
  for (const Column column : tagColumns()) {
    files.push_back({column, {}});
    last = std::max(last, table.upperBound(column));
  }
  for (int row = 1; row <= last; ++row) {
    const Track& track = table.track(row);
    for (File& file : files) {
      const Element& element = table.hasRow(row) ? track.*file.column : table.element(file.column, row);
      if (element.isNothing()) {
        ++file.nothing;
        continue;
      }
      records::writeNothing(file.content, std::exchange(file.nothing, 0));
      records::write(file.content, element);
    }
  }
  mark();
  for (File& file : files) {
    records::writeNothing(file.content, file.nothing);
    store(fileOf(file.column), file.content);
  }
  tagsTold_ = true;
  unmark();
}

void DataFolder::beginChange() {
  namesTold_ = tagsTold_ = false;
  mark();
}

void DataFolder::mark() {
  if (files_.fileExists(changing_)) return;
  writeMark(files_.fileExists(path(fileOf(&Track::nizdes))) ? savedTail_ : 0);
}

void DataFolder::writeMark(int tail) {
  try {
    files_.writeAll(changing_, toBytes(number(std::int64_t{tail})));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // Without the mark a kill may leave a row read that is not, or a count of other rows; nothing worse.
  }
}

void DataFolder::unmark() {
  try {
    if (namesTold_ && tagsTold_ && files_.fileExists(changing_)) files_.remove(changing_);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The next start reads tags that it could have taken from the columns.
  }
}

std::optional<int> DataFolder::markedTail() const {
  try {
    const Text tail = fromBytes(files_.readAll(changing_));
    // A kill before the first byte came before any change.
    if (!tail.empty()) return std::max(intValue(tail), 0);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // No mark, as after every change that has ended.
  }
  return std::nullopt;
}

void DataFolder::readNames(TrackTable& table) const {
  for (const Column column : {&Track::nizdes, &Track::crtapos})
    takeColumn(table, column, readColumn(fileOf(column)));
  table.niznomusic = readList(niznomusicFile);
  table.bazepesama = readList(bazepesamaFile);
  table.stariautori = readList(stariautoriFile);
  table.setBrojfajlova(table.rows());
  table.bazaniz = readList(bazanizFile);
  table.autori = readList(autoriFile);
  for (const Column column : {&Track::pesma, &Track::pevac})
    table.setColumn(column, std::vector<Element>(static_cast<std::size_t>(table.rows())));
}

void DataFolder::readTags(TrackTable& table) {
  const bool changing = files_.fileExists(changing_);
  for (const Column column : tagColumns()) {
    const bool untrue = changing && column == &Track::procitan;
    takeColumn(table, column, untrue ? std::vector<Element>() : readColumn(fileOf(column)));
  }
  forgetHalfRead(table);
  table.brojbaza = static_cast<int>(table.bazepesama.size());
  table.setBrojfajlova(workingRows(table, intValue(settings_.get(u"ghb")), markedTail()));
  savedTail_ = table.rows() - table.workingRows();
}

}  // namespace velmora::core
