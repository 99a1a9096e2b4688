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

/// The frame "Select Years".
struct YearFrame {
  YearFrame() { frame.setVisible(false); }

  Frame frame;
  ListBox List9;  ///< "<<Show All Years>>", and the years from the current one down
  Button ok, cancel;
};

/// The commands under one column of the Music Base Window.
struct ColumnCommands {
  Button newFolder;  ///< "New"; the column of titles has none
  Button ren;        ///< "Ren"
  Button del;        ///< "Del"
};

/// The Music Base Window: the base as a tree of folders, and the menus of the program.
struct Form3 : Window {
  Form3() : Window(u"Music Base") {
    showTips.setChecked(true);
    showNewMusic.setCaption(u"     Show New Music Window    ");
    for (ListBox* hidden : {&List4, &List5, &List6, &List7}) hidden->setVisible(false);
    titles.newFolder.setVisible(false);
  }

  Label rootLabel;              ///< the Music Base folder, empty while none is chosen
  Button selectMainFolder;      ///< "Select main folder for Your Music Base"
  Button showProcessingWindow;  ///< "Show Processing Window"
  Button showNewMusic;          ///< "Show New Music Window", and "Hide" while it is open
  Button showMenuAndButtons;    ///< "Show menu and buttons"
  Button about;
  Button exit;
  CheckBox plneso;         ///< "Play Next Song"
  CheckBox plfr;           ///< "Play With One Click"
  CheckBox showAutor;      ///< "Show Artist In Title List"
  CheckBox showTips;       ///< "Show Tips At Startup"
  CheckBox autoListFocus;  ///< "Auto List Focus"
  Frame menuAndButtons;    ///< shown unless the user hid them

  // The four columns; docs/glossary.md tells what the item data mean.
  ListBox List1{ListBox::Selection::Multi, true};  ///< genres
  ListBox List2{ListBox::Selection::Multi, true};  ///< artists; item data is the index in List1
  ListBox List3;                                   ///< album-year folders; item data is the index in List2
  ListBox List8;                                   ///< titles; item data is the index in List4
  ListBox List4;  ///< hidden: files of the selected albums; item data is the index in List3
  ListBox List5;  ///< hidden: the selected genres
  ListBox List6;  ///< hidden: the selected artists
  ListBox List7;  ///< hidden: the selected albums
  // The name of the row last clicked in each column, and where a new name is typed.
  ComboBox Combo1;  ///< genre
  TextBox Text2;    ///< artist
  TextBox Text3;    ///< album-year
  TextBox Text4;    ///< title
  ColumnCommands genres, artists, albums, titles;

  Button selectYears;  ///< opens the frame
  YearFrame years;
  Splitters splitters;  ///< between List1, List2, List3 and List8
};

}  // namespace velmora::ui
