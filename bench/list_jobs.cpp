#include "bench/list_jobs.h"

#include <filesystem>
#include <stdexcept>

#include "bench/floor.h"
#include "bench/headless.h"
#include "core/text.h"
#include "tags/tag_cache.h"

namespace velmora::bench {
namespace {

Measured measure(const StopWatch& watch, HeadlessProgram& program) {
  return measured(watch, program.table().brojfajlova(), program.table().rows());
}

/// Adds the new music to an empty list; the time is that of the Add button alone.
Measured addTo(const Scene& scene, bool withBase) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  program.settings().set(u"DirZaBazu", withBase ? core::fromBytes(scene.base) : Text());
  program.settings().set(u"ex7", withBase ? u" 1" : u" 0");
  program.start();
  program.form1().folderTree.click(core::fromBytes(scene.music));
  const StopWatch watch;
  program.form1().add.click();
  const Measured result = measure(watch, program);
  if (result.files == 0) throw std::runtime_error("Add found nothing");
  program.end();
  return result;
}

void listFiles(const std::string& folder, core::TrackTable& table) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) table.appendPath(core::fromBytes(entry.path().native()));
  }
}

}  // namespace

Measured floorOfList(const Scene& scene) {
  const StopWatch watch;
  const FloorTotals totals = readFloor(scene.music);
  return measured(watch, totals.files, 0);
}

Measured emptyProgram(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  const StopWatch watch;
  program.start();
  const Measured result = measure(watch, program);
  program.end();
  return result;
}

Measured readTags(const Scene& scene) {
  system::PosixFiles files;
  core::TrackTable table;
  listFiles(scene.music, table);
  table.setBrojfajlova(table.rows());
  table.resizeColumns();
  tags::TagCache cache(table, files);
  const StopWatch watch;
  for (int row = 1; row <= table.rows(); ++row) cache.read(table.path(row), row);
  return measured(watch, table.rows(), table.rows());
}

Measured add(const Scene& scene) {
  return addTo(scene, false);
}

Measured addWithBase(const Scene& scene) {
  return addTo(scene, true);
}

Measured load(const Scene& scene) {
  HeadlessProgram program(scene.state);
  const StopWatch watch;
  program.start();
  const Measured result = measure(watch, program);
  if (result.tableRows <= result.files) throw std::runtime_error("there is no tail to load");
  return result;
}

}  // namespace velmora::bench
