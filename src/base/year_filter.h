#pragma once

#include <functional>

#include "core/settings.h"
#include "platform/text.h"
#include "ui/form3.h"

namespace velmora::base {

/// The frame "Select Years": which years an album folder may bear in its name to be shown. What is applied
/// is what the settings hold; the list may differ from it while the frame is open.
class YearFilter {
 public:
  YearFilter(core::Settings& settings, ui::Form3& form3) : settings_(settings), form3_(form3) {}

  /// What the progress window says while another choice is applied.
  static constexpr TextView busyText = u"Searching Folders With Selected Years In Name...";
  /// Raised when another choice was applied: the base is to be listed anew.
  std::function<void()> onApplied;

  /// Fills the list for the current year and selects what was stored.
  void load(int currentYear);
  /// Whether no filter is in force: "<<Show All Years>>" is selected, whatever else is.
  bool allYears() const;
  /// Whether a folder of this name or path is to be shown; asks the years alone.
  bool passes(TextView folder) const;
  /// The selected rows as the settings keep them.
  Text StanjeLista9() const;

  void open();
  void ok();
  void cancel();

 private:
  Text applied() const;
  void selectApplied(bool yearsPutAllOut);
  void colourButton();

  core::Settings& settings_;
  ui::Form3& form3_;
  int currentYear_ = 0;
  bool noneApplied_ = false;  // an empty setting tells of a choice, not of none made yet
};

}  // namespace velmora::base
