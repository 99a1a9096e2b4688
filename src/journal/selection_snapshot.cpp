#include "journal/selection_snapshot.h"

#include "core/number_text.h"
#include "core/text.h"

namespace velmora::journal {

namespace {

/// The sections, in their order.
enum Section { SelectedList1 = 1, SelectedList2, SelectedList4, TopList1, TopList2, TopList4 };

Text selectedRows(const ui::ListBox& list) {
  Text text;
  for (const int index : list.selectedIndexes()) text += core::number(std::int64_t{index}) + u',';
  return text;
}

class Restorer {
 public:
  Restorer(ui::Form1& form1, const std::function<bool()>& outOfRange)
      : form1_(form1), outOfRange_(outOfRange) {}

  /// Returns false when the restore is to end.
  bool apply(int section, int index) {
    switch (section) {
      case SelectedList1:
        return mark(form1_.List1, index);
      case SelectedList2:
        return mark(form1_.List2, index);
      case SelectedList4:
        return index >= form1_.List4.ListCount() || mark(form1_.List4, index);
      case TopList1:
        form1_.List1.setTopIndex(index);
        return true;
      case TopList2:
        form1_.List2.setTopIndex(index);
        return true;
      case TopList4:
        if (form1_.List4.enabled()) form1_.List4.setTopIndex(index);
        return true;
      default:
        return true;
    }
  }

 private:
  bool mark(ui::ListBox& list, int index) {
    if (!list.enabled()) return true;
    if (index >= list.ListCount()) return outOfRange_();
    list.setSelected(index, true);
    return true;
  }

  ui::Form1& form1_;
  const std::function<bool()>& outOfRange_;
};

}  // namespace

Text selectionSnapshot(const ui::Form1& form1) {
  Text artists = selectedRows(form1.List1);
  if (!artists.empty()) artists.pop_back();
  Text text = artists + u':' + selectedRows(form1.List2) + u':' + selectedRows(form1.List4) + u':';
  for (const ui::ListBox* list : {&form1.List1, &form1.List2, &form1.List4})
    text += core::number(std::int64_t{list->TopIndex()}) + u':';
  return text;
}

void restoreSelection(ui::Form1& form1, TextView snapshot, const std::function<bool()>& outOfRange) {
  form1.List1.clearSelection();
  Restorer restorer(form1, outOfRange);
  int section = SelectedList1;
  Text collected;
  for (const char16_t character : snapshot) {
    if ((character >= u'0' && character <= u'9') || character == u' ') collected += character;
    if (character != u',' && character != u':') continue;
    if (!core::trim(collected).empty() && !restorer.apply(section, core::intValue(collected))) return;
    collected.clear();
    if (character == u':') ++section;
  }
}

}  // namespace velmora::journal
