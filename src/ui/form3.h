#pragma once

#include <array>
#include <cstddef>

#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/window.h"

namespace velmora::ui {

/// Left edge and width of a list in twips, as the splitters stand; no width before a view or a stored place
/// set it.
struct ListPlace {
  int left = 0;
  int width = 0;
  bool operator==(const ListPlace&) const = default;
};

/// Where the splitters between the lists of the Music Base Window stand.
class Splitters : public Observable {
 public:
  static constexpr std::array<int, 4> lists = {1, 2, 3, 8};  ///< the numbers that the stored keys bear

  /// `index` counts along `lists`.
  const ListPlace& place(std::size_t index) const { return places_[index]; }
  void setPlace(std::size_t index, const ListPlace& place) { assign(places_[index], place); }

 private:
  std::array<ListPlace, lists.size()> places_;
};

/// The Music Base Window: the base as a tree of folders, and the menus of the program.
struct Form3 : Window {
  Form3() : Window(u"Music Base") { showTips.setChecked(true); }

  Label rootLabel;              ///< the Music Base folder, empty while none is chosen
  Button selectMainFolder;      ///< "Select main folder for Your Music Base"
  Button showProcessingWindow;  ///< "Show Processing Window"
  Button about;
  Button exit;
  CheckBox plneso;         ///< "Play Next Song"
  CheckBox showTips;       ///< "Show Tips At Startup"
  CheckBox autoListFocus;  ///< "Auto List Focus"
  ListBox List1;           ///< genres
  ListBox List2;           ///< artists
  ListBox List3;           ///< album-year folders
  ListBox List8;           ///< titles
  Splitters splitters;     ///< between List1, List2, List3 and List8
};

}  // namespace velmora::ui
