#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/text.h"
#include "ui/list_box.h"

namespace velmora::test {

using Names = std::vector<std::string>;
using Texts = std::vector<Text>;

/// How tests read the rows of a list, and click them.
struct ListReader {
  static Texts rowsOf(const ui::ListBox& list) {
    Texts rows;
    for (int index = 0; index < list.ListCount(); ++index) rows.push_back(list.List(index));
    return rows;
  }
  /// The same as bytes, which a failed test can print.
  static Names rows(const ui::ListBox& list) {
    Names names;
    for (const Text& row : rowsOf(list)) names.push_back(core::toBytes(row));
    return names;
  }
  /// The selected rows alone.
  static Names chosen(const ui::ListBox& list) {
    Names names;
    for (const int index : list.selectedIndexes()) names.push_back(core::toBytes(list.List(index)));
    return names;
  }
  /// Index of the first row of this text; a missing one fails the test and gives -1.
  static int find(const ui::ListBox& list, TextView text) {
    for (int index = 0; index < list.ListCount(); ++index)
      if (list.List(index) == text) return index;
    ADD_FAILURE() << "no row " << core::toBytes(text);
    return -1;
  }
  /// The user clicks these rows, the last of them last.
  static void click(ui::ListBox& list, const Texts& rows) {
    std::vector<int> indexes;
    for (const Text& row : rows) indexes.push_back(find(list, row));
    list.select(indexes, indexes.back());
  }
};

}  // namespace velmora::test
