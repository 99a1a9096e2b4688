#include "ui/controls.h"

namespace velmora::ui {

void TextBox::setText(TextView text) {
  type(text, static_cast<int>(text.size()));
}

void TextBox::type(TextView text, int cursor) {
  const bool differs = text != text_;
  if (!differs && cursor == cursor_) return;
  text_ = text;
  cursor_ = cursor;
  changed();
  if (differs && onChange) onChange();
}

void OptionButton::setChosen(bool chosen) {
  if (!assign(chosen_, chosen) || !chosen) return;
  for (OptionButton* other : others_) other->setChosen(false);
  if (onClick) onClick();
}

void OptionButton::makeGroup(std::initializer_list<OptionButton*> options) {
  for (OptionButton* option : options)
    for (OptionButton* other : options)
      if (other != option) option->others_.push_back(other);
}

}  // namespace velmora::ui
