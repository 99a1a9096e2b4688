#pragma once

/// How many rows a file list shows. The rows beyond stay in the table.
namespace velmora::ui {

constexpr int displayLimit = 32737;

constexpr bool overLimit(int rows) {
  return rows > displayLimit;
}

/// Rows that are shown of so many.
constexpr int shownRows(int rows) {
  return overLimit(rows) ? displayLimit - 1 : rows;
}

}  // namespace velmora::ui
