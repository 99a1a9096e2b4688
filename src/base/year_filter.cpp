#include "base/year_filter.h"

#include <vector>

#include "base/base_tree.h"
#include "core/number_text.h"
#include "ui/list_state.h"

namespace velmora::base {

namespace {

constexpr TextView key = u"stanje9";
constexpr int allRow = 0;
constexpr int yearsBack = 60;
constexpr ui::Colour grey = {0xE0, 0xE0, 0xE0};
constexpr ui::Colour inForce = {200, 150, 1};

}  // namespace

void YearFilter::load(int currentYear) {
  currentYear_ = currentYear;
  std::vector<Text> rows = {u"<<Show All Years>>"};
  for (int back = 0; back <= yearsBack; ++back) rows.push_back(core::plain(std::int64_t{currentYear - back}));
  form3_.years.List9.fill(std::move(rows));
  form3_.years.frame.setVisible(false);
  selectApplied(false);
  colourButton();
}

bool YearFilter::allYears() const {
  return form3_.years.List9.Selected(allRow);
}

bool YearFilter::passes(TextView folder) const {
  // Row 1 is the current year, and each row below is one year less.
  const int year = FolderYear(folder);
  const bool listed = year <= currentYear_ && year >= currentYear_ - yearsBack;
  return listed && form3_.years.List9.Selected(currentYear_ - year + 1);
}

Text YearFilter::StanjeLista9() const {
  Text state;
  for (const int row : form3_.years.List9.selectedIndexes())
    state.append(core::number(std::int64_t{row})).append(u",");
  return state;
}

void YearFilter::open() {
  form3_.years.frame.setVisible(true);
  form3_.years.List9.takeFocus();
}

void YearFilter::ok() {
  form3_.years.frame.setVisible(false);
  colourButton();
  const Text chosen = StanjeLista9();
  if (chosen == applied()) return;
  if (onApplied) onApplied();
  settings_.set(key, chosen);
  noneApplied_ = chosen.empty();
}

void YearFilter::cancel() {
  if (!form3_.years.frame.visible()) return;
  form3_.years.List9.clearSelection();
  selectApplied(true);
  form3_.years.frame.setVisible(false);
}

/// The choice in force, in the form of StanjeLista9.
Text YearFilter::applied() const {
  const Text stored = settings_.get(key);
  return stored.empty() && !noneApplied_ ? core::number(std::int64_t{allRow}) + u',' : stored;
}

/// Rows that are no more count for nothing, and with none left of some all years are shown.
void YearFilter::selectApplied(bool yearsPutAllOut) {
  ui::ListBox& list = form3_.years.List9;
  const Text rows = applied();
  const ui::ListState stored = ui::readListState(rows + u':', 1);
  for (const int row : stored.front()) {
    if (yearsPutAllOut && row > allRow) list.setSelected(allRow, false);
    list.setSelected(row, true);
  }
  if (list.SelCount() == 0 && !rows.empty()) list.setSelected(allRow, true);
}

void YearFilter::colourButton() {
  if (allYears())
    form3_.selectYears.setColour(grey);
  else if (form3_.years.List9.SelCount() > 0)
    form3_.selectYears.setColour(inForce);
}

}  // namespace velmora::base
