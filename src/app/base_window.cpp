#include "app/base_window.h"

#include <optional>

#include "app/guarded.h"
#include "app/stored_place.h"
#include "core/number_text.h"
#include "ui/tips.h"

namespace velmora::app {

namespace {

constexpr TextView baseFolderKey = u"DirZaBazu";
constexpr TextView autoListFocusKey = u"aatolf";
constexpr TextView sourceKey = u"sourceprozor";

Text splitterKey(std::size_t index, TextView what) {
  return u"l" + core::plain(std::int64_t{ui::Splitters::lists[index]}) + Text(what);
}

}  // namespace

BaseWindow::BaseWindow(core::TrackTable& table, core::Settings& settings, platform::Dialogs& dialogs,
                       ui::Form3& form3, Events& events)
    : table_(table), settings_(settings), dialogs_(dialogs), form3_(form3), events_(events) {}

void BaseWindow::loadOnce() {
  if (loaded_) return;
  loaded_ = true;
  guarded([&] { loadMarks(); });
  guarded([&] { showRoot(); });
  guarded([&] { raise(events_.onListBase); });
  guarded([&] { placeWindow(); });
  table_.puniliste = 1;
  guarded([&] { raise(events_.onRestoreBaseLists); });
  table_.puniliste = 0;
}

void BaseWindow::loadMarks() {
  form3_.showTips.setChecked(ui::showsTipsAtStartup(settings_));
  form3_.autoListFocus.setChecked(settings_.get(autoListFocusKey) == u"True");
  table_.sourceprozor = core::intValue(settings_.get(sourceKey)) == 1 ? 1 : 0;
}

void BaseWindow::showRoot() {
  table_.dirzabazu = settings_.get(baseFolderKey);
  form3_.rootLabel.setText(table_.dirzabazu);
}

void BaseWindow::placeWindow() {
  // Without a stored height the view places a window of design size; see nearMiddle.
  if (!settings_.get(u"f3h").empty()) {
    const int height = twips(settings_.get(u"f3h"));
    const int width = twips(settings_.get(u"f3w"));
    if (height > 0 && width > 0)
      form3_.setPlacement({twips(settings_.get(u"f3x")), twips(settings_.get(u"f3y")), width, height});
  }
  for (std::size_t i = 0; i < ui::Splitters::lists.size(); ++i) {
    const int width = twips(settings_.get(splitterKey(i, u"w")));
    if (width > 0) form3_.splitters.setPlace(i, {twips(settings_.get(splitterKey(i, u"l"))), width});
  }
  if (core::intValue(settings_.get(u"maxb")) == 1) form3_.setState(ui::WindowState::Maximised);
}

void BaseWindow::unload() {
  if (!loaded_) return;
  guarded([&] { storePlace(); });
  guarded([&] { storeLists(); });
}

void BaseWindow::storePlace() {
  settings_.set(u"maxb", form3_.state() == ui::WindowState::Maximised ? u"1" : u"0");
  const ui::Placement& place = form3_.placement();
  if (form3_.state() == ui::WindowState::Normal && place.width > 0 && place.height > 0) {
    settings_.setNumber(u"f3x", place.left);
    settings_.setNumber(u"f3y", place.top);
    settings_.setNumber(u"f3h", place.height);
    settings_.setNumber(u"f3w", place.width);
  }
  for (std::size_t i = 0; i < ui::Splitters::lists.size(); ++i) {
    const ui::ListPlace& list = form3_.splitters.place(i);
    if (list.width <= 0) continue;
    settings_.setNumber(splitterKey(i, u"l"), list.left);
    settings_.setNumber(splitterKey(i, u"w"), list.width);
  }
}

void BaseWindow::storeLists() {
  raise(events_.onStoreBaseLists);
  settings_.setNumber(sourceKey, table_.sourceprozor);
}

void BaseWindow::selectMainFolder() {
  const std::optional<Text> folder =
      dialogs_.pickFolder(u"Select main folder for Your Music Base", settings_.get(baseFolderKey));
  if (!folder || folder->empty()) return;
  settings_.set(baseFolderKey, *folder);
  showRoot();
  raise(events_.onListBase);
}

void BaseWindow::autoListFocusClicked() {
  const bool checked = form3_.autoListFocus.checked();
  if (checked != (settings_.get(autoListFocusKey) == u"True"))
    settings_.setBoolean(autoListFocusKey, checked);
}

}  // namespace velmora::app
