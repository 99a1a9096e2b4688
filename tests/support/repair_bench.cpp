#include "tests/support/repair_bench.h"

#include <algorithm>

#include "core/paths.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"

namespace velmora::test {

namespace {

bool given(const SongTags& tags) {
  return !tags.title.empty() || !tags.artist.empty();
}

std::string joined(std::initializer_list<TextView> texts) {
  std::string all;
  for (const TextView text : texts) all += core::toBytes(text) + '|';
  all.pop_back();
  return all;
}

}  // namespace

void RepairHouse::add(const std::vector<Song>& songs) {
  for (const Song& song : songs) {
    Bytes bytes;
    if (given(song.second)) bytes += Id3v2Maker().values(song.second).padding(300).bytes();
    bytes += mpegFrames();
    if (given(song.first)) bytes += id3v1Tag(song.first);
    program.song(u"in/" + song.name + u".mp3", bytes);
  }
  program.startWithMusic();
  ASSERT_EQ(program.table().brojfajlova(), static_cast<int>(songs.size()));
}

void RepairHouse::select(const std::vector<Text>& names) {
  std::vector<int> indexes;
  for (const Text& name : names) indexes.push_back(rowOf(name) - 1);
  std::ranges::sort(indexes);
  form1().List4.select(indexes, indexes.empty() ? -1 : indexes.back());
}

void RepairHouse::selectAll() {
  std::vector<int> indexes;
  for (int index = 0; index < form1().List4.ListCount(); ++index) indexes.push_back(index);
  form1().List4.select(indexes, 0);
}

void RepairHouse::click(ui::Button& button) {
  EXPECT_TRUE(button.enabled());
  button.click();
  expectAtRest();
}

void RepairHouse::clickForAll(ui::Button& button) {
  selectAll();
  click(button);
}

void RepairHouse::undoAll() {
  for (int undone = 0; tools().undoLastOperation.enabled() && undone < 2000; ++undone)
    tools().undoLastOperation.click();
}

void RepairHouse::expectAtRest() {
  EXPECT_TRUE(form1().enabled());
  EXPECT_FALSE(program.windows().dialog1.visible());
  EXPECT_EQ(program.table().puniliste, 0);
}

Names RepairHouse::names() const {
  Names names;
  for (const auto& entry :
       const_cast<system::PosixFiles&>(program.files).list(program.folder.path(u"music/in")).entries)
    names.push_back(core::toBytes(core::dropRight(entry.name, 4)));
  std::ranges::sort(names);
  return names;
}

Names RepairHouse::listed() {
  Names names;
  for (int row = 1; row <= program.table().brojfajlova(); ++row) {
    EXPECT_EQ(form1().List4.List(row - 1), program.table().path(row));
    names.push_back(core::toBytes(core::paths::bareName(program.table().path(row))));
  }
  std::ranges::sort(names);
  return names;
}

int RepairHouse::rowOf(TextView name) {
  for (int row = 1; row <= program.table().rows(); ++row)
    if (core::paths::bareName(program.table().path(row)) == name) return row;
  ADD_FAILURE() << "not in the list: " << core::toBytes(name);
  return 0;
}

std::string RepairHouse::first(TextView name) {
  tags::cMP3ID3v1 tag(program.files);
  tag.setMP3File(pathOf(name));
  if (!tag.HasID3v1Tag()) return "none";
  return joined({tag.Artist, tag.Title, tag.Album, tag.Year}) + '|' + std::to_string(tag.Track);
}

std::string RepairHouse::second(TextView name) {
  tags::cMP3ID3v2 tag(program.files);
  tag.setMP3File(pathOf(name));
  if (!tag.HasID3v2Tag()) return "none";
  return joined({tag.Artist(), tag.Title(), tag.Album(), tag.Year(), tag.Track()});
}

Names RepairHouse::kinds() const {
  auto& files = const_cast<system::PosixFiles&>(program.files);
  const journal::UndoJournal journal(files, program.settings, program.folder.path(u"program/UndoData.txt"));
  Names kinds;
  for (const Text& record : journal.readRecords()) kinds.push_back(core::toBytes(record.substr(0, 3)));
  return kinds;
}

}  // namespace velmora::test
