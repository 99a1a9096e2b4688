#pragma once

#include "tags/field_values.h"
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
  /// What goes to all of several files: the texts of the ticked boxes. A blank one leaves each file its own.
  FieldValues shared() const;

 private:
  ui::Form1& form1_;
  bool several_ = false;
  bool quiet_ = false;  // marks change by code
};

}  // namespace velmora::tags
