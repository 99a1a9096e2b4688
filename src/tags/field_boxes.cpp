#include "tags/field_boxes.h"

#include <cstddef>

namespace velmora::tags {

namespace {

/// Calls `visit(box, check)` for the six fields, always in the same order.
template <typename Visit>
void forEachField(ui::Form1& form1, Visit visit) {
  visit(form1.tags.title, form1.fieldChecks.title);
  visit(form1.tags.artist, form1.fieldChecks.artist);
  visit(form1.tags.album, form1.fieldChecks.album);
  visit(form1.tags.year, form1.fieldChecks.year);
  visit(form1.tags.track, form1.fieldChecks.track);
  visit(form1.tags.genre, form1.fieldChecks.genre);
}

}  // namespace

FieldBoxes::FieldBoxes(ui::Form1& form1) : form1_(form1) {
  forEachField(form1_, [this](auto& box, ui::CheckBox& check) {
    check.setEnabled(false);
    check.onClick = [this, &box] {
      if (quiet_) return;
      const bool use = !box.enabled();
      box.setEnabled(use);
      if (use)
        box.takeFocus();
      else
        box.setText({});
    };
  });
}

void FieldBoxes::selectionChanged(bool several) {
  if (several == several_) return;
  several_ = several;
  quiet_ = true;
  forEachField(form1_, [several](auto& box, ui::CheckBox& check) {
    check.setChecked(false);
    check.setEnabled(several);
    box.setEnabled(!several);
  });
  quiet_ = false;
}

void FieldBoxes::blankUnticked() {
  forEachField(form1_, [](auto& box, const ui::CheckBox& check) {
    if (!check.checked()) box.setText({});
  });
}

OwnValues::OwnValues(ui::Form1& form1) : form1_(form1), outermost_(!form1.fieldChecks.suspended) {
  if (!outermost_) return;
  std::size_t field = 0;
  forEachField(form1_, [&](auto& box, const ui::CheckBox&) { typed_[field++] = box.text(); });
  form1_.fieldChecks.suspended = true;
}

OwnValues::~OwnValues() {
  if (!outermost_) return;
  form1_.fieldChecks.suspended = false;
  std::size_t field = 0;
  forEachField(form1_, [&](auto& box, const ui::CheckBox& check) {
    if (check.checked()) box.setText(typed_[field]);
    ++field;
  });
}

}  // namespace velmora::tags
