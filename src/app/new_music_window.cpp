#include "app/new_music_window.h"

#include "app/guarded.h"
#include "core/number_text.h"
#include "tags/genre_rows.h"
#include "ui/quiet_lists.h"

namespace velmora::app {

namespace {

constexpr TextView showCaption = u"     Show New Music Window    ";
constexpr TextView hideCaption = u"     Hide New Music Window    ";

}  // namespace

void NewMusicWindow::toggle() {
  if (parts_.table.sourceprozor == 0) return open();
  close();
}

void NewMusicWindow::open() {
  ui::Windows& windows = parts_.windows;
  parts_.table.sourceprozor = 1;
  windows.form3.showNewMusic.setCaption(Text(hideCaption));
  parts_.screen.share();
  load();
  windows.form2.show();
  parts_.table.aktivniprozor = core::WindowAtWork::MusicBase;
}

void NewMusicWindow::load() {
  core::TrackTable& table = parts_.table;
  table.aktivniprozor = core::WindowAtWork::MusicBase;
  parts_.summary.forget();
  parts_.lists.listVolumes();
  guarded([&] {
    const ui::QuietLists quiet(table);
    parts_.lists.IzlistajVrste();
    parts_.state.restore(parts_.settings.get(u"stanje2"));
  });
  table.puniliste = 0;
  parts_.windows.form2.Combo1.setRows(tags::genreRows());
  guarded([&] { parts_.summary.moze(); });
  guarded([&] { parts_.undo.showState(); });
  // While it is open a click in the base must not start a song, and all is played in the preview player.
  table.playonwinamp = 0;
  parts_.base.switchOffOneClick();
}

void NewMusicWindow::close() {
  parts_.table.aktivniprozor = core::WindowAtWork::NewMusic;
  leave();
  parts_.windows.form3.bringToFront();
  parts_.table.aktivniprozor = core::WindowAtWork::MusicBase;
}

void NewMusicWindow::leave() {
  parts_.windows.form3.showNewMusic.setCaption(Text(showCaption));
  if (parts_.table.aktivniprozor == core::WindowAtWork::NewMusic) parts_.table.sourceprozor = 0;
  if (isOpen()) guarded([&] { parts_.state.store(); });
  parts_.windows.form2.hide();
  parts_.screen.giveBack();
  parts_.table.playonwinamp = core::intValue(parts_.settings.get(u"playonwinamp")) == 1 ? 1 : 0;
  parts_.base.loadOneClick();
}

void NewMusicWindow::stepAside() {
  if (!isOpen()) return;
  guarded([&] { parts_.state.store(); });
  parts_.windows.form2.hide();
}

void NewMusicWindow::unload() {
  if (isOpen()) guarded([&] { parts_.state.store(); });
  parts_.windows.form2.hide();
}

void NewMusicWindow::forget() {
  parts_.table.sourceprozor = 0;
  leave();
  parts_.lists.IzlistajVrste();
}

}  // namespace velmora::app
