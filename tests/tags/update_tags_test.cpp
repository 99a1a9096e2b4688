#include "tags/update_tags.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "core/number_text.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "journal/undo_record.h"
#include "platform/file_error.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"
#include "tests/support/scripted_desktop.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using platform::Answer;
using test::Id3v2Maker;

/// A player that notes what it is asked.
class NotingHolder final : public platform::FileHolder {
 public:
  Text file;
  std::string notes;

  bool holds(const Text& path) const override { return path == file; }
  void release() override { notes += "release "; }
  void giveBack(const Text& path) override { notes += path == file ? "give back " : "other "; }
  void close() override {}
};

struct Writer : TagFixture {
  Writer() {
    form1.tags.viewID3v1.onClick = [this] { panel.showTags(); };
    form1.tags.viewID3v2.onClick = [this] { panel.showTags(); };
  }
  /// The one row is a file of these bytes, and the panel shows it.
  void show(const Bytes& bytes, const Text& name = u"song.mp3") {
    table.appendPath(folder.write(name, bytes));
    table.resizeColumns();
    table.setBrojfajlova(table.rows());
    panel.info(table.path(table.rows()), table.rows());
  }
  void fill(const Text& title, const Text& track = {}, const Text& genre = {}) {
    form1.tags.title.setText(title);
    form1.tags.artist.setText(u"Arvola");
    form1.tags.album.setText(u"Lights");
    form1.tags.year.setText(u"1999");
    form1.tags.track.setText(track);
    form1.tags.genre.setText(genre);
  }
  void update(bool toID3v1, bool toID3v2) {
    form1.tags.writeID3v1.setChecked(toID3v1);
    form1.tags.writeID3v2.setChecked(toID3v2);
    writer.UpdateTags();
    EXPECT_EQ(form1.tags.writeID3v1.checked(), toID3v1);
    EXPECT_EQ(form1.tags.writeID3v2.checked(), toID3v2);
  }
  const core::Track& row() { return table.track(table.currentRow); }
  /// What the records in the journal would bring back.
  std::vector<journal::RowSnapshot> records() {
    std::vector<journal::RowSnapshot> found;
    for (const Text& line : journal.readRecords()) {
      const auto data = journal::parseUndoRecord(line).data;
      if (data) found.push_back(*journal::parseRowSnapshot(data->rest));
    }
    return found;
  }
  /// Title, track and genre of the tags, read afresh.
  Text firstTag() {
    cMP3ID3v1 tag(files);
    tag.setMP3File(table.path(table.currentRow));
    return tag.Title + u"|" + core::plain(std::int64_t{tag.Track}) + u"|" +
           core::plain(std::int64_t{tag.Genre});
  }
  Text secondTag() {
    cMP3ID3v2 tag(files);
    tag.setMP3File(table.path(table.currentRow));
    return tag.Title() + u"|" + tag.Track() + u"|" + tag.OtherGenreName();
  }

  const Bytes audio = test::mpegFrames(40);
  const Bytes first = test::id3v1Tag({u"Old", u"Old", u"Old", u"1990", 3, {}}, 17);
  const Bytes second =
      Id3v2Maker().values({u"Old", u"Old", u"Old", u"1990", 3, u"Jazz"}).padding(500).plainBytes();
  TagCache cache{table, files};
  ui::Form1 form1;
  FilePanel panel{table, files, cache, form1};
  test::ScriptedDesktop desktop;
  NotingHolder player;
  BusyFile busyFile{files, desktop, form1.statusLabel};
  core::Settings settings{files, folder.path(u"Settings.ini")};
  journal::UndoJournal journal{files, settings, folder.path(u"UndoData.txt")};
  TagWriter writer{{table, files, desktop, player, journal, failures, busyFile, cache, panel, form1}};
};

TEST_F(Writer, WritesTheTagsWhoseBoxesAreChecked) {
  show(second + audio + first);
  form1.tags.viewID3v1.click();
  fill(u"New", u"5", u"Opera");
  update(true, false);
  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(records()[0].tags[1], u"Old") << "undo gets the row as it was";
  EXPECT_TRUE(form1.tags.viewID3v1.chosen()) << "the view stays where it was";
  EXPECT_EQ(form1.tags.title.text(), u"New");
  form1.tags.viewID3v2.click();
  EXPECT_EQ(firstTag(), u"New|5|103");
  EXPECT_EQ(secondTag(), u"Old|3|Jazz");
  EXPECT_EQ(row().pevacID3v1.text(), u"Arvola");
  EXPECT_EQ(row().pesmaid3v1.text(), u"New");
  EXPECT_EQ(row().pesmaid3v2.text(), u"Old");
  EXPECT_TRUE(row().procitan.isTrue()) << "read afresh";

  fill(u"Newer", u"6", u"Opera");
  update(false, true);
  EXPECT_EQ(firstTag(), u"New|5|103");
  EXPECT_EQ(secondTag(), u"Newer|6|Opera");
  EXPECT_EQ(row().vrstaid3v2.text(), u"Opera");
  EXPECT_EQ(form1.tags.title.text(), u"Newer");
}

TEST_F(Writer, AFirstTagShowsAtOnce) {
  show(audio);
  fill(u"New");
  update(false, true);
  EXPECT_TRUE(form1.tags.viewID3v2.enabled());
  EXPECT_TRUE(form1.tags.viewID3v2.chosen());
  EXPECT_EQ(form1.tags.title.text(), u"New");
  EXPECT_TRUE(row().imaid3v2.isTrue());
  EXPECT_EQ(folder.read(u"song.mp3").size(), audio.size() + 2048);

  show(audio, u"other.mp3");
  fill(u"First");
  update(true, false);
  EXPECT_TRUE(form1.tags.viewID3v1.chosen());
  EXPECT_EQ(form1.tags.title.text(), u"First");
  EXPECT_EQ(folder.read(u"other.mp3").size(), audio.size() + 128);
}

TEST_F(Writer, GenresAndTrackNumbersAsTheyAreTyped) {
  show(second + audio + first);
  struct {
    TextView genre, track, first, second;
  } cases[] = {{u"Blues", u"12", u"New|12|17", u"New|12|Blues"},  // code 0 is never found
               {u"  ", u"0", u"New|0|255", u"New||"},
               {u"Turbo Folk", u"", u"New|0|255", u"New||Turbo Folk"},
               {u"Opera", u"300", u"New|0|103", u"New|300|Opera"}};
  for (const auto& c : cases) {
    fill(u"New", Text(c.track), Text(c.genre));
    update(true, true);
    EXPECT_EQ(firstTag(), c.first);
    EXPECT_EQ(secondTag(), c.second);
  }
}

TEST_F(Writer, OtherFormatsGetNoTags) {
  for (const Text name : {u"song.mp2", u"song.ogg"}) {
    show(audio + first, name);
    fill(u"New");
    update(true, true);
    EXPECT_EQ(folder.read(name), audio + first);
  }
  show(audio, u"Capitals.MP3");
  fill(u"New");
  update(true, false);
  EXPECT_EQ(records().size(), 1U);
}

TEST_F(Writer, AnUntouchedBoxKeepsWhatTheFileHoldsAtThatMoment) {
  show(second + audio + first);
  // Another program writes the file after it was shown.
  folder.write(u"song.mp3",
               Id3v2Maker().values({u"Theirs", u"Old", u"Their album"}).padding(500).plainBytes() + audio +
                   test::id3v1Tag({u"Theirs", u"Old", u"Their album"}));
  form1.tags.artist.setText(u"Ours");
  update(true, true);
  EXPECT_EQ(row().pesmaid3v1.text() + row().pesmaid3v2.text(), u"TheirsTheirs");
  EXPECT_EQ(row().albumid3v1.text() + row().albumid3v2.text(), u"Their albumTheir album");
  EXPECT_EQ(row().pevacID3v1.text() + row().pevacID3v2.text(), u"OursOurs");
  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(records()[0].tags[1], u"Theirs") << "undo brings back what the write changed";
  const Bytes written = folder.read(u"song.mp3");
  update(true, true);
  EXPECT_EQ(records().size(), 1U) << "nothing was changed since";
  EXPECT_EQ(folder.read(u"song.mp3"), written);
}

TEST_F(Writer, ANewTagTakesTheValuesOfTheOtherOneAndABlankOneIsNotMade) {
  show(audio + first);
  form1.tags.album.setText(u"Album");
  update(false, true);
  EXPECT_EQ(secondTag(), u"Old|3|Rock");
  EXPECT_EQ(row().albumid3v2.text(), u"Album");
  EXPECT_EQ(row().albumid3v1.text(), u"Old");
  show(audio, u"bare.mp3");
  update(true, true);
  EXPECT_EQ(folder.read(u"bare.mp3"), audio);
}

TEST_F(Writer, WhatCannotBeJournalledIsNotWritten) {
  show(second + audio + first);
  folder.mkdir(u"UndoData.txt");
  form1.tags.title.setText(u"New");
  form1.tags.writeID3v1.setChecked(true);
  EXPECT_THROW(writer.UpdateTags(), platform::FileError);
  EXPECT_EQ(folder.read(u"song.mp3"), second + audio + first);
}

TEST_F(Writer, AbortAndIgnoreEndTheRowWithoutARecord) {
  for (const Answer answer : {Answer::Abort, Answer::Ignore}) {
    show(second + audio + first);
    files.remove(table.path(table.currentRow));
    fill(u"New");
    const auto told = [this](TextView tag) {
      return u"Error while Update " + Text(tag) + u" " + table.path(table.currentRow) +
             u" # 53 occurred:File not found";
    };
    dialogs.expect(told(u"ID3 V1"), u"Update ID3 tag", answer);
    update(true, true);
    dialogs.expect(told(u"ID3 V2"), u"Update ID3 tag", answer);
    update(false, true);
  }
  EXPECT_TRUE(records().empty());
}

TEST_F(Writer, AReadOnlyMarkIsTakenOff) {
  show(audio + first);
  ASSERT_EQ(::chmod(core::toBytes(table.path(1)).c_str(), 0444), 0);
  fill(u"New");
  update(true, false);
  EXPECT_TRUE(firstTag().starts_with(u"New|"));
}

TEST_F(Writer, ThePlayerLetsGoOfTheFileMeanwhile) {
  show(audio + first);
  player.file = table.path(1);
  fill(u"New");
  update(true, false);
  EXPECT_EQ(player.notes, "release give back ");
  EXPECT_TRUE(desktop.sleeps.empty());
  player.notes.clear();
  desktop.version = 259;
  update(true, false);
  EXPECT_EQ(desktop.sleeps, std::vector{100}) << "older systems need a moment";
  player.file = u"another";
  player.notes.clear();
  update(true, false);
  EXPECT_EQ(player.notes, "");
  // A failure gives it back, too.
  player.file = table.path(1);
  files.remove(player.file);
  dialogs.expectTitle(u"Update ID3 tag", Answer::Abort);
  update(true, false);
  EXPECT_EQ(player.notes, "release give back ");
}

TEST_F(Writer, WaitsWhileAnotherProgramHoldsTheFileUnlessTheWaitIsGivenUp) {
  bool stopped = false;
  busyFile.givenUp = [&stopped] { return stopped; };
  for (const bool givesUp : {false, true}) {
    show(audio + first);
    const int other = ::open(core::toBytes(table.path(1)).c_str(), O_RDWR);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    desktop.then([this] { EXPECT_EQ(form1.statusLabel.text(), u"File is busy, please wait ..."); });
    desktop.then([&] { givesUp ? void(stopped = true) : void(::close(other)); });
    desktop.sleeps.clear();
    const std::size_t before = records().size();
    fill(u"New");
    update(true, false);
    EXPECT_EQ(form1.statusLabel.text(), u"");
    EXPECT_EQ(desktop.sleeps, std::vector(givesUp ? 1 : 2, 1000));
    EXPECT_EQ(records().size() == before, givesUp);
    EXPECT_TRUE(firstTag().starts_with(givesUp ? u"Old|" : u"New|"));
    if (givesUp) ::close(other);
  }
}

}  // namespace
}  // namespace velmora::tags
