#include "app/processing_window.h"

#include <algorithm>
#include <utility>

#include "app/guarded.h"
#include "app/stored_place.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "ui/list_state.h"
#include "ui/view_choice.h"

namespace velmora::app {

namespace {

constexpr TextView defaultWinampFile = u"c:\\Program Files\\Winamp\\winamp.exe";
constexpr int quietest = -10000;  // hundredths of a decibel

/// Fields of `stanje0`.
enum Field : std::size_t { Artists, Songs, Files, TopArtist, TopSong, TopFile, FieldCount };

void selectAgain(ui::ListBox& list, const std::vector<int>& indexes) {
  if (list.ListCount() > 0 && !indexes.empty()) list.select(indexes, indexes.back());
}

void scrollAgain(ui::ListBox& list, const std::vector<int>& top) {
  if (list.ListCount() > 0 && !top.empty()) list.setTopIndex(top.front());
}

}  // namespace

ProcessingWindow::ProcessingWindow(core::TrackTable& table, core::Settings& settings, platform::Files& files,
                                   ui::Form1& form1)
    : table_(table), settings_(settings), files_(files), form1_(form1) {}

void ProcessingWindow::load() {
  guarded([&] {
    table_.dirzabazu = settings_.get(u"DirZaBazu");
    table_.playonwinamp = core::intValue(settings_.get(u"playonwinamp")) == 1 ? 1 : 0;
    table_.winampfile = settings_.get(u"winampfile");
    if (table_.winampfile.empty()) table_.winampfile = defaultWinampFile;
  });
  guarded([&] {
    const Text folder = nearestFolder(settings_.get(u"novidir"));
    if (!folder.empty()) form1_.folderTree.setPath(folder);
  });
  guarded([&] {
    table_.ton = std::clamp(core::intValue(settings_.get(u"ton")), quietest, 0);
    const Text slider = settings_.get(u"slider");
    if (!slider.empty()) form1_.preview.setShare(std::clamp(core::value(slider), 0.0, 1.0));
  });
  guarded([&] { loadPlace(); });
}

Text ProcessingWindow::nearestFolder(Text folder) {
  while (!folder.empty() && !files_.folderExists(folder)) {
    // Without its closing separator the last part is cut off; the root has nothing above it.
    const TextView above = core::paths::folderPart(core::dropRight(folder, 1));
    folder = Text(core::dropRight(above, core::length(above) > 1 ? 1 : 0));
  }
  return folder;
}

void ProcessingWindow::loadPlace() {
  const Text left = settings_.get(u"f1x");
  const Text top = settings_.get(u"f1y");
  if (left.empty() || top.empty()) return;
  form1_.setPlacement({twips(left), twips(top), 0, 0});
  storedPlace_ = form1_.placement();
}

void ProcessingWindow::storePlace() {
  const ui::Placement& place = form1_.placement();
  if (form1_.state() != ui::WindowState::Normal || place == ui::Placement{}) return;
  if (place.left == storedPlace_.left && place.top == storedPlace_.top) return;
  settings_.setNumber(u"f1x", place.left);
  settings_.setNumber(u"f1y", place.top);
  storedPlace_ = place;
}

void ProcessingWindow::restoreLists() {
  const ui::ListState state = ui::readListState(settings_.get(u"stanje0"), FieldCount);
  table_.puniliste = 1;
  guarded([&] {
    selectAgain(form1_.List1, state[Artists]);
    selectAgain(form1_.List2, state[Songs]);
    if (table_.vrsta != core::Review::ArtistList) selectAgain(form1_.List4, state[Files]);
    scrollAgain(form1_.List1, state[TopArtist]);
    scrollAgain(form1_.List2, state[TopSong]);
    scrollAgain(form1_.List4, state[TopFile]);
  });
  table_.puniliste = 0;
}

void ProcessingWindow::store() {
  settings_.set(u"velicinasfiles", core::number(table_.velicinasfiles));
  ui::ListState state(FieldCount);
  state[Artists] = form1_.List1.selectedIndexes();
  state[Songs] = form1_.List2.selectedIndexes();
  // The list comes back with the songs, whose rows those of the other files are not.
  const bool songs = ui::viewOf(form1_) == ui::View::Music;
  if (songs) state[Files] = form1_.List4.selectedIndexes();
  state[TopArtist] = {form1_.List1.TopIndex()};
  state[TopSong] = {form1_.List2.TopIndex()};
  state[TopFile] = {songs ? form1_.List4.TopIndex() : 0};
  settings_.set(u"stanje0", ui::writeListState(state));
  settings_.set(u"slider", core::number(form1_.preview.share()));
}

}  // namespace velmora::app
