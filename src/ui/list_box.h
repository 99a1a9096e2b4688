#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "platform/text.h"
#include "ui/controls.h"

namespace velmora::ui {

struct ListItem {
  Text text;
  int data = 0;
  bool operator==(const ListItem&) const = default;
};

/// A list of texts with one integer of item data each. Indexes count from 0; an index outside the list reads
/// as an empty row and changes nothing.
///
/// Selecting by code raises onClick just as the user's click does: what must keep quiet meanwhile tests
/// `puniliste` or its window's busy mark. The view hears of any number of changes as one notice (see
/// Observable), so filling a list of 100,000 rows costs one repaint.
class ListBox : public Control {
 public:
  enum class Selection { Single, Multi };

  explicit ListBox(Selection selection = Selection::Multi, bool sorted = false)
      : selection_(selection), sorted_(sorted) {}

  std::function<void()> onClick;
  std::function<void()> onDoubleClick;
  /// Returns true when the key was used up.
  std::function<bool(KeyPress)> onKey;
  /// Raised when the user lets go of the mouse on the list, behind the click.
  std::function<void()> onMouseUp;

  /// What a drag of the selected rows carries to the program's own lists; empty when rows cannot be dragged
  /// there.
  Text dragWord;
  /// Full paths that a drag of the selected rows carries to other programs.
  std::function<std::vector<Text>()> dragFiles;
  /// The one word that may be dropped here, for the view to show where a drag can go; empty lets any in.
  Text dropWord;
  /// Raised when a drag that carries a list's word is dropped here.
  std::function<void(const Text& word)> onDrop;

  int ListCount() const { return static_cast<int>(rows_.size()); }
  const Text& List(int index) const;
  void setList(int index, Text text);
  int ItemData(int index) const;
  void setItemData(int index, int data);

  /// Adds a row at the end, or at its place in a sorted list (compared without regard to case). Returns the
  /// index it got.
  int AddItem(Text text, int data = 0);
  /// Adds a row before `index`, whatever the order.
  void insertItem(int index, Text text, int data = 0);
  void RemoveItem(int index);
  void Clear();
  /// Replaces all rows at once, none selected. The order is the caller's, in a sorted list too.
  void fill(std::vector<Text> texts);
  void fillItems(std::vector<ListItem> items);

  bool Selected(int index) const;
  /// In a single-selection list, selecting one row takes the mark off the others.
  void setSelected(int index, bool selected);
  int SelCount() const { return selCount_; }
  /// The selected rows, ascending.
  std::vector<int> selectedIndexes() const;
  /// Takes all marks off, raising one click when there were any.
  void clearSelection();
  /// As the user selects: exactly these rows, `current` last clicked, one click.
  void select(const std::vector<int>& indexes, int current);

  /// Row with the focus; -1 when there is none. Setting it by code marks the row in a single-selection list.
  int ListIndex() const { return listIndex_; }
  void setListIndex(int index);
  /// First row in sight. A number beyond the list counts as its last row.
  int TopIndex() const { return topIndex_; }
  void setTopIndex(int index);

  /// How many whole rows are in sight. Kept up to date by the view.
  int visibleRows() const { return visibleRows_; }
  void setVisibleRows(int rows) { visibleRows_ = rows; }

  Selection selection() const { return selection_; }

  /// What happened to the rows since the view last asked: `removed` rows from `first` on gave way to
  /// `inserted` others, and the rows around them stayed as they were.
  struct Splice {
    int first = 0;
    int removed = 0;
    int inserted = 0;
    bool empty() const { return removed == 0 && inserted == 0; }
  };
  /// For the view alone: any number of changes, joined to one.
  const Splice& pendingSplice() const { return splice_; }
  Splice takeSplice() { return std::exchange(splice_, {}); }

  void doubleClick() {
    if (enabled() && onDoubleClick) onDoubleClick();
  }

 private:
  struct Row {
    Text text;
    int data = 0;
    bool selected = false;
  };

  bool valid(int index) const { return index >= 0 && index < ListCount(); }
  bool mark(int index, bool selected);
  void clicked() {
    if (onClick) onClick();
  }
  void refill(std::vector<Row> rows);
  /// `removed` rows from `first` on gave way to `inserted` others: joins that to what the view has yet to
  /// hear.
  void splice(int first, int removed, int inserted);

  Selection selection_;
  bool sorted_;
  std::vector<Row> rows_;
  int selCount_ = 0;
  int listIndex_ = -1;
  int topIndex_ = 0;
  int visibleRows_ = 20;
  Splice splice_;
};

}  // namespace velmora::ui
