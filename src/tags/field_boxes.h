#pragma once

#include <array>
#include <functional>

#include "platform/text.h"
#include "ui/form1.h"

namespace velmora::tags {

/// The check boxes beside the six tag boxes. They count while several files are selected: a box is then in
/// use when it is ticked, and what is typed in it goes to all files, while the others leave each file its own
/// value. With one file selected every box is in use and there is nothing to tick.
class FieldBoxes {
 public:
  explicit FieldBoxes(ui::Form1& form1);

  /// Other files are selected: `several` tells whether more than one.
  void selectionChanged(bool several);
  /// Blanks the boxes that are not ticked, before the panel shows the next of several files.
  void blankUnticked();

 private:
  ui::Form1& form1_;
  bool several_ = false;
  bool quiet_ = false;  // marks change by code
};

/// While an object of this class lives, every tag box shows the file's own value, ticked or not. What was
/// typed comes back afterwards.
class OwnValues {
 public:
  explicit OwnValues(ui::Form1& form1);
  ~OwnValues();
  OwnValues(const OwnValues&) = delete;
  OwnValues& operator=(const OwnValues&) = delete;

 private:
  ui::Form1& form1_;
  std::array<Text, 6> typed_;
  bool outermost_;
};

/// Puts the two marks that say which tags a write goes to back as they were.
class KeptWriteMarks {
 public:
  explicit KeptWriteMarks(ui::TagPanel& panel)
      : panel_(panel), first_(panel.writeID3v1.checked()), second_(panel.writeID3v2.checked()) {}
  ~KeptWriteMarks() { restore(); }
  KeptWriteMarks(const KeptWriteMarks&) = delete;
  KeptWriteMarks& operator=(const KeptWriteMarks&) = delete;

  void restore() {
    panel_.writeID3v1.setChecked(first_);
    panel_.writeID3v2.setChecked(second_);
  }
  bool toID3v1() const { return first_; }
  bool toID3v2() const { return second_; }

 private:
  ui::TagPanel& panel_;
  bool first_;
  bool second_;
};

}  // namespace velmora::tags
