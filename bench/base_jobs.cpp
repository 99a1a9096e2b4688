#include "bench/base_jobs.h"

#include <filesystem>
#include <stdexcept>

#include "base/base_lists.h"
#include "bench/headless.h"
#include "core/text.h"
#include "list/base_list.h"

namespace velmora::bench {
namespace {

/// A program with the base in front and nothing selected in it.
void open(HeadlessProgram& program, const Scene& scene) {
  program.settings().set(u"DirZaBazu", core::fromBytes(scene.base));
  program.start();
  program.form1().closeRequest();
  program.form3().onActivate();
  if (program.form3().List1.ListCount() == 0) throw std::runtime_error("there is no base to look at");
}

/// As the user clicks each row, one after the other.
void clickEach(ui::ListBox& list, Laps& laps) {
  for (int row = 0; row < list.ListCount(); ++row) laps.time([&] { list.select({row}, row); });
}

Measured clickThrough(const Scene& scene, void (*clicks)(ui::Form3& form3, Laps& laps)) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  open(program, scene);
  Laps laps;
  clicks(program.form3(), laps);
  if (program.form3().List8.ListCount() == 0) throw std::runtime_error("the clicks listed nothing");
  return laps.measured();
}

}  // namespace

Measured showBase(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  program.settings().set(u"DirZaBazu", core::fromBytes(scene.base));
  program.start();
  const StopWatch watch;
  program.form1().closeRequest();
  return measured(watch, program.form3().List1.ListCount(), 0);
}

Measured listGenres(const Scene& scene) {
  std::filesystem::create_directories(scene.state);
  system::PosixFiles files;
  QuietDesktop desktop;
  core::TrackTable table;
  core::Settings settings(files, core::fromBytes(scene.state + "/Settings.ini"));
  settings.set(u"DirZaBazu", core::fromBytes(scene.base));
  ui::Form3 form3;
  base::LastPosition positions(files, core::fromBytes(scene.state + "/LastPosition.dat"));
  base::YearFilter years(settings, form3);
  years.load(desktop.currentYear());
  base::BaseLists lists({table, settings, files, desktop, form3, positions, years});
  lists.readRoot();
  const StopWatch watch;
  for (int i = 0; i < genreListings; ++i) lists.IzlistajBazu();
  const Measured result = measured(watch, genreListings, 0);
  if (form3.List1.ListCount() == 0) throw std::runtime_error("there is no base to list");
  return result;
}

Measured clickGenres(const Scene& scene) {
  return clickThrough(scene, [](ui::Form3& form3, Laps& laps) { clickEach(form3.List1, laps); });
}

Measured clickArtists(const Scene& scene) {
  return clickThrough(scene, [](ui::Form3& form3, Laps& laps) {
    for (int genre = 0; genre < form3.List1.ListCount(); ++genre) {
      form3.List1.select({genre}, genre);
      clickEach(form3.List2, laps);
    }
  });
}

Measured clickAlbums(const Scene& scene) {
  return clickThrough(scene, [](ui::Form3& form3, Laps& laps) {
    for (int genre = 0; genre < form3.List1.ListCount(); ++genre) {
      form3.List1.select({genre}, genre);
      for (int artist = 0; artist < form3.List2.ListCount(); ++artist) {
        form3.List2.select({artist}, artist);
        clickEach(form3.List3, laps);
      }
    }
  });
}

Measured filterYears(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  HeadlessProgram program(scene.state);
  open(program, scene);
  ui::Form3& form3 = program.form3();
  form3.selectYears.click();
  form3.years.List9.select({1}, 1);
  const StopWatch watch;
  form3.years.ok.click();
  const Measured result = measured(watch, 0, 0);
  if (form3.List1.ListCount() > 0) throw std::runtime_error("the years filtered nothing");
  return result;
}

Measured refreshBase(const Scene& scene) {
  std::filesystem::remove_all(scene.state);
  std::filesystem::create_directories(scene.state);
  system::PosixFiles files;
  QuietDesktop desktop;
  core::TrackTable table;
  ui::Windows windows;
  ui::Progress progress(table, windows, desktop);
  core::Settings settings(files, core::fromBytes(scene.state + "/Settings.ini"));
  core::DataFolder data(files, settings, core::fromBytes(scene.state));
  list::BaseList list({table, files, desktop, progress, windows.form5}, data);
  const StopWatch watch;
  list.refresh(core::fromBytes(scene.base), u"Refresh Music Base List ...");
  return measured(watch, static_cast<int>(table.bazaniz.size()), 0);
}

}  // namespace velmora::bench
