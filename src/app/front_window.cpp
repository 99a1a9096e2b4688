#include "app/front_window.h"

#include <utility>

namespace velmora::app {

using core::WindowAtWork;

void FrontWindow::showBase() {
  parts_.windows.form1.hide();
  parts_.base.loadOnce();
  parts_.windows.form3.show();
  parts_.windows.form3.bringToFront();
  parts_.windows.form3.showNewMusic.setEnabled(parts_.table.brojfajlova() > 0);
  parts_.table.aktivniprozor = WindowAtWork::MusicBase;
}

void FrontWindow::newMusicActivated() {
  activated(WindowAtWork::NewMusic);
}

void FrontWindow::baseActivated() {
  activated(WindowAtWork::MusicBase);
}

void FrontWindow::activated(WindowAtWork window) {
  activated_ = window;
  if (!parts_.work.commandRunning()) settle();
}

void FrontWindow::settle() {
  const WindowAtWork window = std::exchange(activated_, WindowAtWork::NotYetKnown);
  // The notice may arrive after the window was left again.
  if (window == WindowAtWork::NewMusic && parts_.windows.form2.visible()) parts_.table.aktivniprozor = window;
  if (window == WindowAtWork::MusicBase && parts_.windows.form3.visible())
    parts_.table.aktivniprozor = window;
}

void FrontWindow::showProcessing() {
  parts_.base.storeLists();
  parts_.newMusic.stepAside();
  parts_.windows.form3.hide();
  parts_.table.aktivniprozor = WindowAtWork::Processing;
  parts_.windows.form1.setEnabled(true);
  parts_.windows.form1.show();
  parts_.closing.moze();
}

void FrontWindow::assort() {
  const bool hasRows = parts_.table.brojfajlova() >= 1;
  showBase();
  if (!hasRows) return parts_.newMusic.forget();
  parts_.table.sourceprozor = 0;
  parts_.newMusic.toggle();
  if (parts_.settings.get(u"DirZaBazu").empty()) offerBaseFolder();
  parts_.table.aktivniprozor = WindowAtWork::MusicBase;
}

void FrontWindow::offerBaseFolder() {
  const platform::Answer answer = parts_.dialogs.message(
      u"Music Base folder was not selected. You can select now or latter by click on most left folder icon."
      u"\r\n\r\nSelect now?",
      u"New Music Files Window", platform::Buttons::YesNo, platform::Icon::Question);
  if (answer == platform::Answer::Yes) parts_.base.selectMainFolder();
}

void FrontWindow::closeProcessing() {
  ui::Form1& form1 = parts_.windows.form1;
  if (!form1.visible()) return;
  if (parts_.table.vrsta != core::Review::None) {
    const platform::Answer answer =
        parts_.dialogs.message(u"Process in progres and will be stopped. You want to continue ?",
                               u"Processing Window", platform::Buttons::YesNo, platform::Icon::Question);
    if (answer != platform::Answer::Yes) return;
    raise(parts_.events.onExitReview);
    parts_.table.vrsta = core::Review::None;
  }
  assort();
}

}  // namespace velmora::app
