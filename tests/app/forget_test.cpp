// What a program that is killed at rest leaves on the disk is all that it knew: each command saves the rows
// and what was read of them.

#include "core/text.h"
#include "tests/support/base_house.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

std::string written(const core::Element& element) {
  if (element.isText()) return '"' + core::toBytes(element.text()) + '"';
  return element.isNothing() ? "-" : element.isTrue() ? "yes" : "no";
}

/// All columns of all rows, and what is counted beside them.
std::vector<std::string> told(const core::TrackTable& table) {
  std::vector<std::string> rows = {std::to_string(table.brojfajlova())};
  for (int row = 1; row <= table.rows(); ++row) {
    std::string line;
    for (const core::Column column : core::allColumns()) line += written(table.track(row).*column) + ' ';
    rows.push_back(line);
  }
  for (const Text& artist : table.autori) rows.push_back(core::toBytes(artist));
  return rows;
}

struct Forget : test::RepairBench {
  void expectSavedBy(const char* command) {
    const auto known = told(program.table());
    program.forget();
    program.startInProcessingWindow();
    EXPECT_EQ(told(program.table()), known) << command;
  }
};

TEST_F(Forget, EachCommandOfTheProcessingWindowHasSavedWhatItKnows) {
  program.dialogs.otherwise = [](platform::Buttons buttons) {
    return buttons == platform::Buttons::YesNo ? platform::Answer::Yes : platform::Answer::Ok;
  };
  add({{u"arvola - harbour", {.title = u"a", .artist = u"x", .album = u"First"}, {}},
       {u"01 kora - rain", {}, {.title = u"b", .artist = u"y", .album = u"Second"}},
       {u"lumo - dusk", {}, {}}});
  expectSavedBy("Add");
  for (ui::Button ui::RepairTools::*button :
       {&ui::RepairTools::fnToId3, &ui::RepairTools::fixSyntax, &ui::RepairTools::removeTrackNumber,
        &ui::RepairTools::id3ToFn, &ui::RepairTools::replaceArtistTitle,
        &ui::RepairTools::undoLastOperation}) {
    for (ui::CheckBox* writes : {&form1().tags.writeID3v1, &form1().tags.writeID3v2})
      writes->setChecked(true);
    selectAll();
    (tools().*button).click();
    double bytes = 0;
    for (int row = 1; row <= 3; ++row)
      bytes += static_cast<double>(program.files.size(program.table().path(row)));
    EXPECT_EQ(program.table().velicinasfiles, bytes) << "the sum of sizes follows what is written";
    expectSavedBy("a batch or its undo");
  }
  form1().List4.select({0}, 0);
  tools().deleteFiles.click();
  EXPECT_EQ(program.table().brojfajlova(), 2);
  expectSavedBy("Delete");
  undo();
  EXPECT_EQ(program.table().brojfajlova(), 3);
  expectSavedBy("Undo of Delete");
}

struct BaseForget : testing::Test, test::BaseHouse {
  BaseForget() : BaseHouse(false) {}
  void expectSaved() {
    const auto known = told(program.table());
    program.forget();
    program.start();
    EXPECT_EQ(told(program.table()), known);
    form3().showNewMusic.click();
  }
};

TEST_F(BaseForget, AMoveAndItsUndoHaveSavedWhatTheyKnow) {
  program.dialogs.otherwise = [](platform::Buttons) { return platform::Answer::Ok; };
  start();
  expectSaved();
  form2().List1.select({2}, 2);
  pressInNewMusic(form2().moveGenre);
  EXPECT_LT(program.table().brojfajlova(), 10);
  expectSaved();
  undoAll();
  EXPECT_EQ(program.table().brojfajlova(), 10);
  expectSaved();
}

// Columns of a save that was cut short speak of other rows; the song must go to its own album all the same.
TEST_F(BaseForget, AMoveReadsTheTagsThatNoColumnTells) {
  program.dialogs.otherwise = [](platform::Buttons) { return platform::Answer::Ok; };
  start();
  const test::BaseHouse::Places before = places();
  form2().List1.select({0}, 0);
  pressInNewMusic(form2().moveGenre);
  const test::BaseHouse::Places moved = places();
  undoAll();
  ASSERT_EQ(places(), before);
  program.forget();
  program.folder.write(u"program/velmora.changing", " 0");
  program.start();
  form3().showNewMusic.click();
  EXPECT_FALSE(program.table().track(1).procitan.isTrue());
  form2().List1.select({0}, 0);
  pressInNewMusic(form2().moveGenre);
  EXPECT_EQ(places(), moved);
}

}  // namespace
}  // namespace velmora
