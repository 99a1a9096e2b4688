#pragma once

#include "core/track_table.h"
#include "ui/form1.h"

namespace velmora::list {

/// Offers known artists in List3 while the user types in the name box.
class ArtistCompletion {
 public:
  ArtistCompletion(core::TrackTable& table, ui::Form1& form1);

  /// The text of the name box, or of Text8 in the Artist List view, changed.
  void boxChanged();
  /// A line of List3 was clicked: puts the artist in the box.
  void List3Click();
  /// Up and Down in the name box. Returns whether the key was used up.
  bool nameBoxKey(ui::KeyPress press);

 private:
  core::TrackTable& table_;
  ui::Form1& form1_;
};

}  // namespace velmora::list
