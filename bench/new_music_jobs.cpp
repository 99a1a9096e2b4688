#include "bench/new_music_jobs.h"

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "bench/corpus.h"
#include "bench/headless.h"
#include "core/text.h"

namespace velmora::bench {
namespace {

constexpr int everyAutor = 0;  // rows of List1
constexpr int withoutGenree = 1;
constexpr int firstGenre = 2;

/// The music on the list, no tag read, and the New Music Window open.
void addAndShow(HeadlessProgram& program, const Scene& scene, const std::string& base) {
  program.settings().set(u"ex7", u" 0");
  program.settings().set(u"DirZaBazu", core::fromBytes(base));
  program.start();
  program.form1().folderTree.click(core::fromBytes(scene.music));
  program.form1().add.click();
  program.form1().assort.click();
}

/// What scanTags left, in the Music Base Window with the New Music Window closed.
void startAgain(HeadlessProgram& program) {
  program.start();
  program.form1().assort.click();
  program.form3().showNewMusic.click();
  if (program.form2().visible()) throw std::runtime_error("the New Music Window is open already");
}

void showWindow(HeadlessProgram& program) {
  program.form3().showNewMusic.click();
  if (program.form2().List1.ListCount() <= firstGenre) throw std::runtime_error("there are no genres");
  program.form2().onActivate();
}

/// The time of one click, in the New Music Window as it first shows.
Measured click(const Scene& scene, int genre) {
  HeadlessProgram program(scene.state);
  startAgain(program);
  showWindow(program);
  const StopWatch watch;
  program.form2().List1.select({genre}, genre);
  const Measured result = measured(watch, 0, 0);
  if (program.form2().List2.ListCount() == 0) throw std::runtime_error("the click listed nobody");
  return result;
}

int indexOf(const ui::ListBox& list, const Text& start) {
  for (int index = 0; index < list.ListCount(); ++index)
    if (list.List(index).starts_with(start)) return index;
  throw std::runtime_error("no such row: " + core::toBytes(start));
}

}  // namespace

Measured scanTags(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  addAndShow(program, scene, scene.base);
  const StopWatch watch;
  program.form2().scanTags.click();
  return measured(watch, program.table().brojfajlova(), program.table().rows());
}

Measured showNewMusic(const Scene& scene) {
  HeadlessProgram program(scene.state);
  startAgain(program);
  const StopWatch watch;
  program.form3().showNewMusic.click();
  const Measured result = measured(watch, 0, 0);
  if (program.form2().List1.ListCount() <= firstGenre) throw std::runtime_error("there are no genres");
  return result;
}

Measured clickEveryAutor(const Scene& scene) {
  return click(scene, everyAutor);
}

Measured clickWithoutGenree(const Scene& scene) {
  return click(scene, withoutGenree);
}

Measured clickSlowestGenre(const Scene& scene) {
  HeadlessProgram program(scene.state);
  startAgain(program);
  showWindow(program);
  ui::ListBox& genres = program.form2().List1;
  Measured slowest;
  for (int genre = firstGenre; genre < genres.ListCount(); ++genre) {
    const StopWatch watch;
    genres.select({genre}, genre);
    const Measured lap = measured(watch, 0, 0);
    if (lap.seconds > slowest.seconds) slowest = lap;
  }
  return slowest;
}

Measured clickBusyArtist(const Scene& scene) {
  HeadlessProgram program(scene.state);
  startAgain(program);
  showWindow(program);
  ui::Form2& form2 = program.form2();
  form2.List1.select({everyAutor}, everyAutor);
  const int artist = indexOf(form2.List2, core::fromBytes(busyArtist));
  const StopWatch watch;
  form2.List2.select({artist}, artist);
  form2.List3.select({0}, 0);  // all his songs
  const Measured result = measured(watch, 0, 0);
  if (form2.List4.ListCount() * 12 < program.table().brojfajlova())
    throw std::runtime_error("the artist has too few songs");
  return result;
}

Measured moveGenres(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  const std::string base = scene.state + "/Base";
  std::filesystem::create_directory(base);
  addAndShow(program, scene, base);
  program.form2().onActivate();
  program.form2().scanTags.click();
  ui::ListBox& list = program.form2().List1;
  std::vector<int> genres(static_cast<std::size_t>(list.ListCount() - firstGenre));
  std::iota(genres.begin(), genres.end(), firstGenre);
  list.select(genres, firstGenre);
  const int before = program.table().brojfajlova();
  const int rows = program.table().rows();
  const StopWatch watch;
  program.form2().moveGenre.click();
  const Measured result = measured(watch, before - program.table().brojfajlova(), rows);
  if (result.files < before * 9 / 10) throw std::runtime_error("not all was moved");
  program.end();
  return result;
}

Measured undoMove(const Scene& scene) {
  HeadlessProgram program(scene.state);
  program.start();
  program.form1().assort.click();
  program.form2().onActivate();
  const int before = program.table().brojfajlova();
  const StopWatch watch;
  program.form2().undoLastOperation.click();
  const Measured result = measured(watch, program.table().brojfajlova() - before, program.table().rows());
  if (result.files <= before) throw std::runtime_error("not all came back");
  program.end();
  return result;
}

}  // namespace velmora::bench
