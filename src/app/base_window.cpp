#include "app/base_window.h"

#include <optional>

#include "app/guarded.h"
#include "app/stored_place.h"
#include "base/base_state.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "tags/genre_rows.h"
#include "ui/quiet_lists.h"
#include "ui/tips.h"

namespace velmora::app {

namespace {

constexpr TextView baseFolderKey = u"DirZaBazu";
constexpr TextView sourceKey = u"sourceprozor";
constexpr TextView buttonsKey = u"komande";

Text splitterKey(std::size_t index, TextView what) {
  return u"l" + core::plain(std::int64_t{ui::Splitters::lists[index]}) + Text(what);
}

}  // namespace

void BaseWindow::loadOnce() {
  if (loaded_) return;
  loaded_ = true;
  ui::Form3& form3 = parts_.form3;
  guarded([&] { loadMarks(); });
  guarded([&] { showRoot(); });
  guarded([&] { parts_.years.load(parts_.desktop.currentYear()); });
  guarded([&] { parts_.lists.IzlistajBazu(); });
  guarded([&] { placeWindow(); });
  guarded([&] {
    const ui::QuietLists quiet(parts_.table);
    base::restoreLists(form3, parts_.table, parts_.settings.get(u"stanje1"));
  });
  parts_.table.puniliste = 0;
  if (parts_.table.sourceprozor == 0) guarded([&] { loadOneClick(); });
  form3.Combo1.setRows(tags::genreRows());
  if (parts_.settings.get(buttonsKey) == u"False") form3.menuAndButtons.setVisible(false);
}

void BaseWindow::loadMarks() {
  ui::Form3& form3 = parts_.form3;
  form3.showTips.setChecked(ui::showsTipsAtStartup(parts_.settings));
  form3.showNewMusic.setEnabled(parts_.table.brojfajlova() > 0);
  form3.showAutor.setChecked(parts_.settings.get(u"showautor") == u"True");
  form3.autoListFocus.setChecked(parts_.settings.get(u"aatolf") == u"True");
  parts_.table.sourceprozor = core::intValue(parts_.settings.get(sourceKey)) == 1 ? 1 : 0;
}

void BaseWindow::loadOneClick() {
  parts_.form3.plfr.setChecked(parts_.settings.get(u"plfr") == u"True");
}

void BaseWindow::switchOffOneClick() {
  keepsMarks_ = true;
  parts_.form3.plfr.setChecked(false);
  keepsMarks_ = false;
}

void BaseWindow::showRoot() {
  parts_.table.dirzabazu = parts_.settings.get(baseFolderKey);
  parts_.form3.rootLabel.setText(parts_.table.dirzabazu);
  parts_.lists.readRoot();
}

void BaseWindow::placeWindow() {
  core::Settings& settings = parts_.settings;
  ui::Form3& form3 = parts_.form3;
  // Without a stored height the view places a window of design size.
  if (!settings.get(u"f3h").empty()) {
    const int height = twips(settings.get(u"f3h"));
    const int width = twips(settings.get(u"f3w"));
    if (height > 0 && width > 0)
      form3.setPlacement({twips(settings.get(u"f3x")), twips(settings.get(u"f3y")), width, height});
  }
  for (std::size_t i = 0; i < ui::Splitters::lists.size(); ++i) {
    const int width = twips(settings.get(splitterKey(i, u"w")));
    if (width > 0) form3.splitters.setPlace(i, {twips(settings.get(splitterKey(i, u"l"))), width});
  }
  if (core::intValue(settings.get(u"maxb")) == 1) form3.setState(ui::WindowState::Maximised);
}

void BaseWindow::unload() {
  if (!loaded_) return;
  guarded([&] { storePlace(); });
  guarded([&] { storeLists(); });
}

void BaseWindow::storePlace() {
  core::Settings& settings = parts_.settings;
  const ui::WindowState state = parts_.screen.baseState();
  const ui::Placement place = parts_.screen.basePlacement();
  settings.set(u"maxb", state == ui::WindowState::Maximised ? u"1" : u"0");
  if (state == ui::WindowState::Normal && place.width > 0 && place.height > 0) {
    settings.setNumber(u"f3x", place.left);
    settings.setNumber(u"f3y", place.top);
    settings.setNumber(u"f3h", place.height);
    settings.setNumber(u"f3w", place.width);
  }
  for (std::size_t i = 0; i < ui::Splitters::lists.size(); ++i) {
    const ui::ListPlace& list = parts_.form3.splitters.place(i);
    if (list.width <= 0) continue;
    settings.setNumber(splitterKey(i, u"l"), list.left);
    settings.setNumber(splitterKey(i, u"w"), list.width);
  }
}

void BaseWindow::storeLists() {
  parts_.settings.set(u"stanje1", base::StanjeLista(parts_.form3));
  parts_.settings.setNumber(sourceKey, parts_.table.sourceprozor);
}

void BaseWindow::selectMainFolder() {
  const std::optional<Text> folder = parts_.dialogs.pickFolder(u"Select main folder for Your Music Base",
                                                               parts_.settings.get(baseFolderKey));
  if (!folder || folder->empty()) return;
  if (!core::paths::fitsRecord(*folder)) {
    parts_.dialogs.message(u"The path of the Music Base must not hold a double quote or a line break.",
                           u"Music Base", platform::Buttons::Ok, platform::Icon::Exclamation);
    return;
  }
  parts_.settings.set(baseFolderKey, *folder);
  showRoot();
  parts_.lists.IzlistajBazu();
  if (onRootChosen) onRootChosen();
}

void BaseWindow::toggleMenuAndButtons() {
  const bool shown = !parts_.form3.menuAndButtons.visible();
  parts_.form3.menuAndButtons.setVisible(shown);
  parts_.settings.setBoolean(buttonsKey, shown);
}

void BaseWindow::storeMark(TextView key, bool checked) {
  if (!keepsMarks_ && checked != (parts_.settings.get(key) == u"True"))
    parts_.settings.setBoolean(key, checked);
}

}  // namespace velmora::app
