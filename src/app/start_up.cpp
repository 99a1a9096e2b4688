#include "app/start_up.h"

#include "app/enable_commands.h"
#include "app/guarded.h"
#include "app/house.h"
#include "app/shut_down.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "tags/genre_rows.h"

namespace velmora::app {

namespace {

bool givesWay(House& house) {
  if (!house.services.desktop.anotherInstanceRunning()) return false;
  const platform::Answer answer = house.services.dialogs.message(
      u"Another instance of this program is already open. Click OK to shutdown this execution.", u"Velmora",
      platform::Buttons::OkCancel, platform::Icon::None);
  return answer == platform::Answer::Ok;
}

void loadForm1(House& house) {
  core::TrackTable& table = house.table;
  table.niznomusic.clear();
  guarded([&] { house.options.loadForm7(); });
  house.processing.load();
  guarded([&] { house.options.loadForm5(); });
  guarded([&] { house.options.loadForm6(); });
  guarded([&] { house.options.loadDialog2(); });
  guarded(
      [&] { table.aktivniprozor = core::windowOf(core::intValue(house.settings.get(u"aktivniprozor"))); });
  house.loader.load();
  table.vrsta = core::Review::None;
  house.loaded = true;
}

/// Lets a window paint before the long steps that follow.
void pump(House& house) {
  guarded([&] { house.services.desktop.pumpEvents(); });
}

void showTip(House& house) {
  if (house.ending || !ui::showsTipsAtStartup(house.settings)) return;
  constexpr TextView fileName = u"TIPOFDAY.TXT";
  Text path = core::paths::join(house.folders.program, fileName);
  if (!house.services.files.fileExists(path)) {
    const Text shipped = core::paths::join(house.folders.shipped, fileName);
    if (house.services.files.fileExists(shipped)) path = shipped;
  }
  house.tips.load(path);
  house.modal.run(house.windows.frmTip);
}

/// The review that ran when the program last ended; what is none counts as none.
core::Review storedReview(const House& house) {
  return core::reviewOf(core::intValue(house.settings.get(u"vrsta")));
}

void resume(House& house, const std::function<void()>& review) {
  if (!house.ending) house.work.wait([&] { guarded([&] { raise(review); }); });
}

void startInProcessingWindow(House& house) {
  const core::Review review = storedReview(house);
  house.table.vrsta = review;
  house.windows.form1.show();
  pump(house);
  guarded([&] { showTip(house); });
  if (review == core::Review::ArtistList) resume(house, house.events.onResumeArtistList);
  house.processing.restoreLists();
  if (review == core::Review::Duplicates) {
    resume(house, house.events.onResumeDuplicates);
  } else if (review != core::Review::None && review != core::Review::ArtistList) {
    resume(house, house.events.onResumeCheckFix);
  }
}

void startInBaseWindow(House& house) {
  // The Processing Window's lists are restored although it stays hidden: the end of the program stores them,
  // and would store empty ones.
  house.processing.restoreLists();
  house.front.showBase();
  pump(house);
  if (house.table.sourceprozor == 1) {
    guarded([&] { house.newMusic.open(); });
    pump(house);
  }
  guarded([&] { showTip(house); });
}

void finishForm1(House& house) {
  showUndoState(house);
  house.table.puniliste = 0;
  house.windows.form1.tags.genre.setRows(tags::genreRows());
  enableCommands(house);
  // What is selected again is shown again.
  if (house.table.vrsta == core::Review::None) guarded([&] { raise(house.windows.form1.List4.onClick); });
}

}  // namespace

void startUp(House& house) {
  if (givesWay(house)) return giveWay(house);
  loadForm1(house);
  if (house.table.aktivniprozor == core::WindowAtWork::Processing) {
    startInProcessingWindow(house);
  } else {
    startInBaseWindow(house);
  }
  finishForm1(house);
}

}  // namespace velmora::app
