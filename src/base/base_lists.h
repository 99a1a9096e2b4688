#pragma once

#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/base_tree.h"
#include "base/last_position.h"
#include "base/title_text.h"
#include "base/year_filter.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "ui/form3.h"

namespace velmora::base {

/// The four columns of the Music Base Window, filled from the folder tree at each click. Rows are tied to
/// their parents by item data alone; paths are put together from the rows at the moment of use.
class BaseLists {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    platform::Files& files;
    platform::Desktop& desktop;
    ui::Form3& form3;
    LastPosition& positions;
    YearFilter& years;
  };
  explicit BaseLists(const Parts& parts);

  /// A title is to be played.
  std::function<void(const Text& path)> onPlay;

  /// What a click on a column does besides its work.
  enum class NextClick {
    Acts,
    WrapsToFirst,  ///< takes the mark off row 1 and selects row 0
    WrapsToLast,   ///< takes the mark off the last row but one and selects the last
  };
  NextClick nextClick = NextClick::Acts;  ///< back at Acts after one click
  bool idle = false;                      ///< while set, a click on a column does nothing
  /// While set, another window's command works with the columns: "-<< Without Folder >>-" is not tested, no
  /// position is saved and no title restored.
  bool driven = false;
  /// Rows that code selects meanwhile are not played, though "Play With One Click" be checked.
  class Unarmed {
   public:
    explicit Unarmed(BaseLists& lists) : lists_(lists), before_(std::exchange(lists.armed_, false)) {}
    ~Unarmed() { lists_.armed_ = before_; }
    Unarmed(const Unarmed&) = delete;
    Unarmed& operator=(const Unarmed&) = delete;

   private:
    BaseLists& lists_;
    bool before_;
  };

  /// The root with a separator at its end; empty while no folder was chosen.
  const Text& root() const { return root_; }
  /// Reads the root from the settings again.
  void readRoot();

  /// Empties the four columns and lists the genres.
  void IzlistajBazu();
  // The click handlers of the columns, public since other commands call them after a change of the tree.
  void List1Click();
  void List2Click();
  void List3Click();
  void List8Click();
  /// What List3Click does, whatever row was clicked last.
  void listTitles();
  /// Titles anew from the files that are listed, after a change of "Show Artist In Title List".
  void fillTitles();
  /// Remembers the title, and plays it.
  void List8DoubleClick();
  /// Remembers the album that was clicked, or that all are selected.
  void List3MouseUp();
  /// Up on the first row and Down on the last go round to the other end. Returns whether the key was used up.
  bool listKey(ui::ListBox& list, ui::KeyPress press);
  /// Selects a title by code: it is not played.
  void selectTitle(int index);

  // Paths, put together from the rows; those of folders end in a separator. An index outside its list gives
  // nothing.
  Text genrePath(int index) const;   ///< of a row of List1
  Text artistPath(int index) const;  ///< of a row of List2
  Text albumPath(int index) const;   ///< of a row of List3; the artist's folder for "-<< Without Folder >>-"
  /// Of a row of List4. For a file outside of album folders, "-<< Without Folder >>-" gets its artist.
  Text filePath(int index);
  bool isWithoutFolder(int index) const { return index == 0 && parts_.form3.List3.List(0) == withoutFolder; }
  Text titleOf(int index) const;  ///< title of a row of List4, as List8 shows it

  /// Full paths of what is selected in one of the four columns, as another program takes them.
  std::vector<Text> draggedFiles(const ui::ListBox& column);

 private:
  bool diverted(ui::ListBox& list);
  void listArtists();
  bool artistPasses(const Text& artistFolder) const;
  bool genrePasses(const Text& genreFolder) const;
  const Contents& artistContents(int artist);
  std::vector<ui::ListItem> albumRows(const std::vector<int>& artists);
  void selectAlbums(const Text& artist);
  void restoreTitle();
  void play(int title);
  bool atWork() const;
  bool quiet() const { return parts_.table.puniliste == 1; }
  TitleText titleText() const;
  std::vector<Text> selectedTexts(const ui::ListBox& list) const;

  Parts parts_;
  Text root_;
  bool armed_ = true;                                 // a click on a title may play it
  std::unordered_map<int, Contents> artistContents_;  // by index, for the length of one click on List2
  // Index of the artist of each file outside of album folders, which begin List4. Artists may have files of
  // one name, so the disk alone would not tell.
  std::vector<int> looseArtists_;
};

}  // namespace velmora::base
