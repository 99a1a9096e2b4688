// A long walk of random commands, and the whole way back.

#include <map>
#include <set>

#include "core/paths.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "journal/undo_record.h"
#include "tests/support/repair_bench.h"
#include "tests/support/walk.h"

namespace velmora {
namespace {

class ThereAndBack : public test::RepairBench, public testing::WithParamInterface<unsigned> {
 protected:
  static constexpr int steps = 2000;

  /// Names that clash, that differ in capitals, that are odd; files with one, both or no tags.
  void makeCollection() {
    const std::vector<Text> names = {u"arvola - harbour",
                                     u"Arvola - Harbour",
                                     u"01 Arvola - Harbour",
                                     u"02-kora_rain(live)",
                                     u"KO-RA - Thunder",
                                     u"track 03 song",
                                     u"Dj Nemo - Mix 1999",
                                     u"a  -  b",
                                     u"plain",
                                     u"plain ",
                                     u"PLAIN",
                                     u"()",
                                     u"- - -",
                                     u"\u0107ma - \u0142\u00F3d\u017A",
                                     u"Feat%20Other - x",
                                     u"1999"};
    std::vector<Song> songs;
    for (std::size_t i = 0; i < names.size(); ++i) {
      Song song{names[i], {}, {}};
      const Text number = core::ascii(std::to_string(i));
      if (i % 2 == 0)
        song.first = {.title = u"harbour", .artist = u"arvola", .album = u"First " + number, .track = 3};
      if (i % 3 == 0)
        song.second = {.title = u"Harbour",
                       .artist = u"Arvola",
                       .album = u"An album with a long name, number " + number};
      songs.push_back(song);
    }
    add(songs);
  }

  void step() {
    const std::vector<int> chosen = choose();
    switch (random(12)) {
      case 0:
        return press(tools().fixSyntax);
      case 1:
        if (chosen.empty()) return;
        program.dialogs.expectInput(u"Input string to remove from selected files:", u"Remove String",
                                    random(4) == 0 ? std::nullopt : std::optional<Text>(text()));
        return press(tools().removeString);
      case 2:
        return press(tools().removeTrackNumber);
      case 3:
        return press(tools().removeYearNumber);
      case 4:
        return press(tools().replaceArtistTitle);
      case 5:
        if (chosen.size() == 1) form1().Text1.setText(text());
        return press(tools().rename);
      case 6:
        return press(tools().fnToId3);
      case 7:
        return press(tools().id3ToFn);
      case 8:
        return update();
      case 9:
        if (chosen.size() <= 2 && program.table().brojfajlova() > 6)
          form1().List4.onKey({ui::Key::Delete, true});
        return;
      case 10:
        return press(tools().undoName);
      default:
        // Now and then far back, so that the walk starts again from many different names.
        for (int i = random(40) == 0 ? 40 : 1; i > 0; --i) press(tools().undoLastOperation);
    }
  }

  /// Selects up to four rows, and sets the options and marks in some way.
  std::vector<int> choose() {
    std::set<int> rows;
    for (int i = random(5); i > 0; --i) rows.insert(random(program.table().brojfajlova()));
    const std::vector<int> indexes(rows.begin(), rows.end());
    form1().List4.select(indexes, indexes.empty() ? -1 : indexes.back());
    form1().tags.writeID3v1.setChecked(random(3) != 0);
    form1().tags.writeID3v2.setChecked(random(3) == 0);
    ui::Dialog2& options = program.windows().dialog2;
    for (ui::CheckBox* option :
         {&options.fix2, &options.fix3, &options.fix10, &options.fix13, &options.fix14})
      option->setChecked(random(2) == 0);
    ui::OptionButton* modes[] = {&options.fixo1, &options.fixo2, &options.fixo3};
    modes[random(3)]->setChosen(true);
    return indexes;
  }

  void update() {
    for (ui::CheckBox* check : {&form1().fieldChecks.album, &form1().fieldChecks.year}) {
      if (random(2) == 0) check->click();
    }
    if (form1().tags.album.enabled()) form1().tags.album.setText(text());
    if (form1().tags.year.enabled()) form1().tags.year.setText(u"1987");
    press(form1().update);
  }

  void press(ui::Button& button) { button.click(); }

  Text text() {
    const std::vector<Text> texts = {
        u"plain", u"a",       u"Arvola", u"arvola - harbour", u"A?B",       u"", u"PLAIN", u"-",
        u"12 x",  u"Harbour", u"e",      u"two  blanks ",     u"Kora: Rain"};
    return random.oneOf(texts);
  }

  /// What must be the same again: the rows in their order, and the texts of each file's tags.
  using Rows = std::vector<std::string>;
  Rows rows() {
    Rows all;
    for (int row = 1; row <= program.table().brojfajlova(); ++row) {
      const Text name(
          core::dropRight(program.table().path(row).substr(program.folder.path(u"music/in/").size()), 4));
      const core::Track& track = program.table().track(row);
      all.push_back(core::toBytes(name + u" / " + track.pevac.text() + u" / " + track.pesma.text()) + " / " +
                    tagsOf(name));
    }
    return all;
  }

  /// Another file under each name that a song had before and that is free, and under that of each second song
  /// that lies in the trash.
  std::map<Text, Bytes> putStrangers() {
    std::map<Text, Bytes> strangers;
    const journal::UndoJournal journal(program.files, program.settings,
                                       program.folder.path(u"program/UndoData.txt"));
    for (const Text& line : journal.readRecords()) {
      const journal::UndoRecord record = journal::parseUndoRecord(line);
      if (!record.data) continue;
      Text path;
      if (const auto renamed = journal::parseRenamePayload(record.data->rest);
          record.kind == u"ren" && renamed)
        path = renamed->path;
      if (const auto deleted = journal::parseDeletedFile(record.data->first);
          record.kind == u"del" && deleted)
        path = deleted->path;
      if (path.empty() || program.files.fileExists(path) || random(2) == 0) continue;
      const Bytes bytes = test::Id3v2Maker().values({.title = u"better"}).padding(9).bytes() +
                          test::mpegFrames(3) + test::id3v1Tag({.title = u"better"});
      program.files.create(path)->writeAt(0, bytes);
      strangers.emplace(path, bytes);
    }
    return strangers;
  }

  test::Dice random{GetParam()};
};

TEST_P(ThereAndBack, EveryStepOfALongWalkIsTakenBack) {
  makeCollection();
  const Rows before = rows();
  const std::vector<std::string> namesBefore = names();
  const std::vector<Text> artistsBefore = test::artistsOf(program.table());
  const double bytesBefore = program.table().velicinasfiles;
  const Bytes music = test::mpegFrames();

  for (int i = 0; i < steps; ++i) {
    step();
    ASSERT_FALSE(HasFailure()) << "at step " << i;
    ASSERT_TRUE(form1().enabled());
  }

  undoAll();
  ASSERT_FALSE(tools().undoLastOperation.enabled());
  EXPECT_EQ(names(), namesBefore);
  EXPECT_EQ(rows(), before);
  EXPECT_EQ(test::artistsOf(program.table()), artistsBefore);
  test::expectAsLoadedAfresh(program, program.folder.path(u"music/in"));
  // A tag that was made cost the last byte of the music or left padding ahead of it; no more than that.
  for (const std::string& name : namesBefore)
    EXPECT_NE(program.files.readAll(pathOf(core::fromBytes(name))).find(music.substr(0, music.size() - 400)),
              Bytes::npos);
  EXPECT_EQ(program.table().velicinasfiles, bytesBefore);
  program.restart();
  EXPECT_EQ(rows(), before) << "and so after a new start";
}

TEST_P(ThereAndBack, StrangersUnderOldNamesAreLeftAloneAndEverySongIsFound) {
  constexpr int fewSteps = 400;
  makeCollection();
  for (int i = 0; i < fewSteps; ++i) step();
  const auto strangers = putStrangers();
  ASSERT_GT(strangers.size(), 10u);

  program.dialogs.otherwise = [](platform::Buttons buttons) {
    return buttons == platform::Buttons::AbortRetryIgnore ? platform::Answer::Ignore : platform::Answer::Ok;
  };
  for (int i = 0; tools().undoLastOperation.enabled(); ++i) {
    tools().undoLastOperation.click();
    if (i % 50 == 0) program.restart();
  }
  for (const auto& [path, bytes] : strangers) EXPECT_EQ(program.files.readAll(path), bytes);
  std::set<Text> listed;
  for (int row = 1; row <= program.table().brojfajlova(); ++row) {
    const Text& path = program.table().path(row);
    EXPECT_TRUE(program.files.fileExists(path)) << core::toBytes(path);
    EXPECT_FALSE(strangers.contains(path)) << core::toBytes(path);
    EXPECT_TRUE(listed.insert(path).second) << core::toBytes(path);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ThereAndBack, testing::ValuesIn(test::walkSeeds(2)));

}  // namespace
}  // namespace velmora
