#pragma once

#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/player_panel.h"
#include "ui/repair_tools.h"
#include "ui/review_panel.h"
#include "ui/window.h"

namespace velmora::ui {

/// The two groups of tag values and where a write of them goes.
struct TagPanel {
  TagPanel() {
    OptionButton::makeGroup({&viewID3v1, &viewID3v2});
    viewID3v1.setEnabled(false);
    viewID3v2.setEnabled(false);
  }

  OptionButton viewID3v1;  ///< "ID3v1": the boxes show the values of this tag
  OptionButton viewID3v2;  ///< "ID3v2"
  CheckBox writeID3v1;     ///< a write goes to the ID3v1 tag
  CheckBox writeID3v2;     ///< a write goes to the ID3v2 tag
  TextBox title, artist, album, year, track;
  ComboBox genre;
};

/// The Processing Window: the working list, the file panel and the tools on names and tags.
struct Form1 : Window {
  Form1() : Window(u"Processing Window") {
    OptionButton::makeGroup({&muzickiFajlovi, &ostali});
    muzickiFajlovi.setChosen(true);
    ostali.setEnabled(false);
    List3.setVisible(false);
    preview.setShare(1);
  }

  // Making the list.
  FolderBox folderTree;  ///< the folder that Add works on
  Button newList, add, addFolder;
  Button otherFiles;            ///< opens Form8
  OptionButton muzickiFajlovi;  ///< "Show Music Files"
  OptionButton ostali;          ///< "Show Other Files"
  Label listTitle;              ///< "M U S I C    F I L E S" or "O T H E R    F I L E S"
  Label countLabel;             ///< " 12  new songs "
  Label sizeLabel;              ///< size text of the listed files
  Label statusLabel;            ///< what the program waits for or plays
  Button options;               ///< opens Form5
  Button fixOptions;            ///< opens Dialog2
  Button checkFixOptions;       ///< opens Form6
  Button duplicateOptions;      ///< opens Form7
  Button about;                 ///< opens frmAbout

  ListBox List4;                                   ///< the working list: row i of the table at index i - 1
  ListBox List1{ListBox::Selection::Multi, true};  ///< artists, in Artist List mode
  ListBox List2;                                   ///< songs of the selected artists; item data is the row
  ListBox List3{ListBox::Selection::Single};       ///< artists that complete the name box
  ListBox List5;                                   ///< remembers the selection of List1
  ListBox List6{ListBox::Selection::Single};  ///< suggestions of Check+Fix, or the pair of Find Duplicates
  ListBox List7;                              ///< kinds of the artists in List1
  ListBox List8;                              ///< "NEW" or "OLD" beside each row of List2

  // The file panel.
  Label fileSize, fileLength, frequency, bitRate, mode, path;
  TextBox Text1;  ///< the name box: bare name of the current row
  TextBox Text8;  ///< "Artist part of filename"
  TextBox Text5;  ///< "Name of song part of filename"
  TagPanel tags;
  FieldChecks fieldChecks;
  Button update;  ///< writes the tag boxes to the file

  // The reviews.
  Button checkFix;          ///< "Check+Fix": walks the list from its first file
  Button checkFixFromHere;  ///< the same from the first selected file on
  Button findDuplicates;    ///< "Find Duplicates"
  Button artistList;        ///< "Artist List"
  ReviewPanel review;
  Timer Timer1{3000};  ///< the list timer: beats while Find Duplicates waits at a pair
  Timer Timer3{100};   ///< keeps the top row of List8 equal to that of List2, in Artist List mode

  Button assort;   ///< Assort Files Per Folders: on to the Music Base Window
  Slider preview;  ///< sound of the preview player; its share is stored under `slider`
  PlayerPanel player;
  RepairTools repair;
};

}  // namespace velmora::ui
