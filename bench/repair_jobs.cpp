#include "bench/repair_jobs.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "bench/headless.h"
#include "core/text.h"
#include "journal/undo_journal.h"

namespace velmora::bench {
namespace {

void selectAll(ui::ListBox& list) {
  std::vector<int> indexes(static_cast<std::size_t>(list.ListCount()));
  std::iota(indexes.begin(), indexes.end(), 0);
  list.select(indexes, 0);
}

/// A program with the whole collection on its list, selected, and both tags ticked.
void setUp(HeadlessProgram& program, const Scene& scene) {
  program.settings().set(u"ex7", u" 0");
  program.start();
  ui::Form1& form1 = program.form1();
  form1.folderTree.click(core::fromBytes(scene.music));
  form1.add.click();
  selectAll(form1.List4);
  form1.tags.writeID3v1.setChecked(true);
  form1.tags.writeID3v2.setChecked(true);
}

/// Of all files that the list shows; a long list shows a part of its rows.
Measured timed(HeadlessProgram& program, ui::Button& button, int files) {
  if (!button.enabled()) throw std::runtime_error("the command is not to be had");
  const int rows = program.table().rows();
  const StopWatch watch;
  button.click();
  const Measured result = measured(watch, files, std::max(rows, program.table().rows()));
  program.end();
  return result;
}

Measured batch(const Scene& scene, ui::Button ui::RepairTools::*button) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  setUp(program, scene);
  ui::Form1& form1 = program.form1();
  return timed(program, form1.repair.*button, form1.List4.ListCount());
}

}  // namespace

Measured fixSyntax(const Scene& scene) {
  return batch(scene, &ui::RepairTools::fixSyntax);
}

Measured namesToTags(const Scene& scene) {
  return batch(scene, &ui::RepairTools::fnToId3);
}

Measured deleteAll(const Scene& scene) {
  return batch(scene, &ui::RepairTools::deleteFiles);
}

Measured undoLast(const Scene& scene) {
  HeadlessProgram program(scene.state);
  program.start();
  ui::Form1& form1 = program.form1();
  const Measured result = timed(program, form1.repair.undoLastOperation, 0);
  return {result.seconds, result.processorSeconds, form1.List4.ListCount(), result.tableRows};
}

Measured lastMarker(const Scene& scene) {
  constexpr int records = 1'000'000;
  constexpr int inLastStretch = 20'000;
  std::filesystem::remove_all(scene.state);
  std::filesystem::create_directories(scene.state);
  const std::string path = scene.state + "/UndoData.txt";
  {
    std::ofstream journal(path, std::ios::binary);
    for (int i = 1; i <= records; ++i) {
      if (i == records - inLastStretch)
        journal << "\"st1\"\r\n";
      else
        journal << "\"ren041/home/ana/Music/New/Arvola - Lantern.mp3 006 12345041/home/ana/Music/New/"
                   "arvola_-_lantern.mp3002 8\"\r\n";
    }
  }
  system::PosixFiles files;
  core::Settings settings(files, core::fromBytes(scene.state + "/Settings.ini"));
  settings.set(u"vrsta", u" 0");
  const journal::UndoJournal journal(files, settings, core::fromBytes(path));
  const StopWatch watch;
  const std::string kind = journal.lastUndoMarker();
  const Measured result = measured(watch, 0, 0);
  if (kind != "st1") throw std::runtime_error("the marker was not found");
  return result;
}

}  // namespace velmora::bench
