#include "tags/field_boxes.h"

#include "tags/form_fields.h"

namespace velmora::tags {

FieldBoxes::FieldBoxes(ui::Form1& form1) : form1_(form1) {
  forEachField(form1_, [this](auto& box, ui::CheckBox& check, auto) {
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
  forEachField(form1_, [several](auto& box, ui::CheckBox& check, auto) {
    check.setChecked(false);
    check.setEnabled(several);
    box.setEnabled(!several);
  });
  quiet_ = false;
}

FieldValues FieldBoxes::shared() const {
  FieldValues values;
  forEachField(form1_, [&values](const auto& box, const ui::CheckBox& check, auto field) {
    if (check.checked() && !box.text().empty()) values.*field = box.text();
  });
  return values;
}

}  // namespace velmora::tags
