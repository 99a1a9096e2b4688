#include "app/shut_down.h"

#include "app/guarded.h"
#include "app/house.h"
#include "app/tell_of_others.h"

namespace velmora::app {

namespace {

void storeOptions(House& house) {
  const core::TrackTable& table = house.table;
  core::Settings& settings = house.settings;
  const core::Settings::Together together(settings);
  guarded([&] {
    const ui::ListBox& pair = house.windows.form1.List6;
    if (pair.ListCount() < 2) return;
    settings.setNumber(u"vratidup1", pair.ItemData(0));
    settings.setNumber(u"vratidup2", pair.ItemData(1));
  });
  guarded([&] {
    settings.setBoolean(u"dupli", house.windows.form7.similarFilename.chosen());
    settings.setNumber(u"ton", table.ton);
  });
}

void unloadForm1(House& house) {
  const core::TrackTable& table = house.table;
  core::Settings& settings = house.settings;
  guarded([&] {
    const core::Settings::Together together(settings);
    house.processing.store();
    settings.setNumber(u"aktivniprozor", static_cast<int>(table.aktivniprozor));
    settings.setNumber(u"vrsta", static_cast<int>(table.vrsta));
  });
  guarded([&] { house.data.savenizove(table); });
  // After a kill the next start would find dashes and tags anew once more.
  guarded([&] {
    if (!house.data.namesTrue()) house.data.SaveID3nizove(table);
  });
  guarded([&] { storeOptions(house); });
  guarded([&] { house.player.close(); });
}

void leave(House& house) {
  for (ui::Window* window : house.windows.all()) window->hide();
  guarded([&] { house.services.desktop.pumpEvents(); });
  house.ended = true;
  raise(house.onEnd);
}

}  // namespace

void requestEnd(House& house) {
  if (house.ending) return;
  house.ending = true;
  house.modal.dismissAll();
  house.work.whenAtRest([&house] { shutDown(house); });
}

void shutDown(House& house) {
  if (house.ended || house.shuttingDown) return;
  house.shuttingDown = true;
  // Before the load there is nothing to store, and an empty table would wipe the files of the last run.
  if (house.loaded) {
    {
      const core::Settings::Together together(house.settings);
      house.base.unload();
      house.newMusic.unload();
    }
    house.windows.form3.hide();
    house.windows.form1.hide();
    unloadForm1(house);
    guarded([&] { tellOfOthers(house); });
  }
  leave(house);
}

void giveWay(House& house) {
  house.ending = true;
  house.shuttingDown = true;
  leave(house);
}

}  // namespace velmora::app
