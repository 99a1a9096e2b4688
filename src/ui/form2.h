#pragma once

#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/window.h"

namespace velmora::ui {

/// The New Music Window: the working list by genre, artist, album-year and title, on its way into the base.
struct Form2 : Window {
  Form2() : Window(u"New Music") {
    OptionButton::makeGroup({&genreByTag, &genreByFolder});
    OptionButton::makeGroup({&albumByTag, &albumByFolder});
    genreByTag.setChosen(true);
    albumByTag.setChosen(true);
    for (Control* hidden :
         std::initializer_list<Control*>{&Dir1, &Drive1, &List8, &List5, &List6, &List7, &List9, &List10})
      hidden->setVisible(false);
  }

  // The first pair of columns goes by tag or by folder, and so does the second.
  OptionButton genreByTag, genreByFolder;  ///< "ID3 tag" and "FOLDER" of the genre column
  OptionButton albumByTag, albumByFolder;  ///< the same of the album column

  ListBox List1;    ///< genres by tag; hidden while the genre column goes by folder
  FolderBox Dir1;   ///< folders of the new music; shown in place of List1
  ComboBox Drive1;  ///< the machine's volumes, for Dir1
  ListBox List2;    ///< artists
  ListBox List3;    ///< albums by tag; hidden while the album column goes by folder
  ListBox List8;    ///< albums by folder; shown in place of List3
  ListBox List4;    ///< titles; item data is the row
  ListBox List5;    ///< hidden: the selected genres; item data is the index in List1
  ListBox List6;    ///< hidden: the selected artists
  ListBox List7;    ///< hidden: scratch lists for the selected albums and folders
  ListBox List9, List10;
  ComboBox Combo1;  ///< genre; its rows are the names of the genre table
  TextBox Text2;    ///< artist
  TextBox Text3;    ///< album
  TextBox Text5;    ///< year
  TextBox Text4;    ///< title

  Button moveGenre, moveArtist, moveAlbum, moveTitle;  ///< "MOVE"
  Button nameGenre, nameArtist, nameAlbum;             ///< "Name"
  Button scanTags;                                     ///< "Scan ID3 Of Every New Music Files"
  Button undoLastOperation;                            ///< "Undo Last Operation"
  Button close;                                        ///< back to the base alone

  Label statusLabel;  ///< path of the song last clicked
  Label newLabel;     ///< "New: " and the count of new files
  Label needLabel;    ///< "Need: " and the room that they need on the base's volume
  Label freeLabel;    ///< "Free(" with the volume, and its free room
};

}  // namespace velmora::ui
