#pragma once

#include "base/last_position.h"
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

  // Paths, put together from the rows. An index outside its list gives a path that lacks its part.
  Text genrePath(int index) const;   ///< of a row of List1
  Text artistPath(int index) const;  ///< of a row of List2
  Text albumPath(int index) const;   ///< of a row of List3; the artist's folder for "-<< Without Folder >>-"
  /// Of a row of List4, after the probe for files outside of album folders.
  Text filePath(int index);

 private:
  Parts parts_;
  Text root_;
};

}  // namespace velmora::base
