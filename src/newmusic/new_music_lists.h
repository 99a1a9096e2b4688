#pragma once

#include <vector>

#include "core/settings.h"
#include "core/track_table.h"
#include "newmusic/move_summary.h"
#include "newmusic/new_music_mirror.h"
#include "newmusic/new_music_rows.h"
#include "platform/files.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// The four columns of the New Music Window: what a click in each of them lists to its right. All rows are
/// derived from the table at the moment of the click. Under `puniliste` a click lists, but chooses nothing in
/// the column to its right, and the other windows stay as they are.
class NewMusicLists {
 public:
  struct Parts {
    core::TrackTable& table;
    const core::Settings& settings;
    platform::Files& files;
    ui::Windows& windows;
    ui::Progress& progress;
    NewMusicMirror& mirror;
    MoveSummary& summary;
  };
  explicit NewMusicLists(const Parts& parts) : parts_(parts), form2_(parts.windows.form2) {}

  /// Empties the columns and lists the genres anew.
  void IzlistajVrste();

  void List1Click();  ///< genres by tag
  void Dir1Click();   ///< folders in their place
  void Drive1Change();
  void List2Click();  ///< artists
  void List3Click();  ///< albums by tag
  void List8Click();  ///< albums by folder
  void List4Click();  ///< titles

  // The options were chosen.
  void genresByTag();
  void genresByFolder();
  void albumsByTag();
  void albumsByFolder();

  /// The genre column goes by tag, or by folder with this one opened. Nothing is chosen in it by tag.
  void showGenresByTag();
  void showFolder(const Text& folder);
  /// Fills Drive1 with the machine's volumes, and shows the one that Dir1 lies on.
  void listVolumes();
  /// An artist came into the working list, or left it, while another window than the Processing Window is in
  /// front.
  void artistAdded(const Text& artist);
  void artistRemoved(const Text& artist);

  /// The selected rows of the genre column; in folder mode the one that stands for all files.
  std::vector<GenreRow> chosenGenres() const;
  /// Name of the opened folder, which stands for the genre while the genre column goes by folder.
  Text folderGenre() const;
  /// How many holds keep the clicks of this window's lists from doing anything; see ClickHold.
  int& held() { return held_; }

 private:
  bool quiet() const { return parts_.table.puniliste == 1; }
  void showFolderTree(Text folder);
  void clearArtists();
  void clearSongs();
  void chooseFirstArtist();
  void fillAlbums(const NewMusicRows& rows);
  void fillFolders(const NewMusicRows& rows);
  void showSongs(const std::vector<int>& rows);
  void keepEveryAlone(ui::ListBox& list);

  Parts parts_;
  ui::Form2& form2_;
  int held_ = 0;
};

/// The texts of the selected rows of a list.
std::vector<Text> selectedTexts(const ui::ListBox& list);
/// Selects this row alone, raising a click even when it was so before. Nothing happens without the row.
void selectOnly(ui::ListBox& list, int index);

}  // namespace velmora::newmusic
