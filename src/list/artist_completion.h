#pragma once

#include <vector>

#include "core/track_table.h"
#include "ui/form1.h"

namespace velmora::list {

/// Offers known artists in List3 while the user types in the name box, or in `Text8` in the Artist List view.
/// While a command runs, or code fills the boxes with clicks kept quiet (`puniliste`), it does nothing.
class ArtistCompletion {
 public:
  ArtistCompletion(core::TrackTable& table, ui::Form1& form1) : table_(table), form1_(form1) {}

  /// The text of the box changed: offers the artists that begin with what stands before the cursor, in any
  /// capitals, those of the working list first.
  void boxChanged();
  /// A line of List3 was clicked: puts the artist in the box, and in the name box the title behind it.
  void List3Click();
  /// Up and Down in the name box: plays the neighbouring file, or chooses the first artist on offer. Returns
  /// whether the key was used up.
  bool nameBoxKey(ui::KeyPress press);

 private:
  bool quiet() const { return !form1_.enabled() || table_.puniliste == 1; }
  bool artistListView() const { return table_.vrsta == core::Review::ArtistList; }
  ui::TextBox& box() { return artistListView() ? form1_.Text8 : form1_.Text1; }
  bool playNeighbour(int step);
  void closeOffer();

  core::TrackTable& table_;
  ui::Form1& form1_;
};

}  // namespace velmora::list
