#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/text.h"
#include "ui/observable.h"

namespace velmora::ui {

/// The keys that commands tell apart.
enum class Key { Up, Down, Left, Right, Enter, Delete, F12, Escape };

struct KeyPress {
  Key key;
  bool shift = false;
};

struct Colour {
  std::uint8_t red, green, blue;
  bool operator==(const Colour&) const = default;
};

/// What every control has. A disabled control ignores the user, but code may still change it.
class Control : public Observable {
 public:
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { assign(enabled_, enabled); }
  bool visible() const { return visible_; }
  void setVisible(bool visible) { assign(visible_, visible); }
  /// Asks the view for the keyboard focus; counts the requests.
  void takeFocus() { ++focusRequests_, changed(); }
  int focusRequests() const { return focusRequests_; }

 protected:
  ~Control() = default;

 private:
  bool enabled_ = true;
  bool visible_ = true;
  int focusRequests_ = 0;
};

/// A part of a window that is shown and hidden with all it holds.
class Frame : public Control {};

class Label : public Control {
 public:
  const Text& text() const { return text_; }
  void setText(TextView text) { assign(text_, text); }
  /// Colour of the text; none leaves it to the view.
  const std::optional<Colour>& colour() const { return colour_; }
  void setColour(std::optional<Colour> colour) { assign(colour_, colour); }

 private:
  Text text_;
  std::optional<Colour> colour_;
};

class Button : public Control {
 public:
  std::function<void()> onClick;
  /// What the button says where that changes; empty leaves it to the view.
  const Text& caption() const { return caption_; }
  void setCaption(Text caption) { assign(caption_, std::move(caption)); }
  /// Colour behind the caption; none leaves it to the view.
  const std::optional<Colour>& colour() const { return colour_; }
  void setColour(std::optional<Colour> colour) { assign(colour_, colour); }
  /// Does nothing while the button is disabled or hidden.
  void click() {
    if (enabled() && visible() && onClick) onClick();
  }

 private:
  Text caption_;
  std::optional<Colour> colour_;
};

/// A line of text. The cursor counts the characters to its left.
class TextBox : public Control {
 public:
  std::function<void()> onChange;
  /// Returns true when the key was used up and the box must not act on it.
  std::function<bool(KeyPress)> onKey;
  /// Set by the view: takes back the user's last edit in the box, as its own undo key does.
  std::function<void()> undoEdit;

  const Text& text() const { return text_; }
  /// Puts the cursor behind the text and raises onChange when the text differs.
  void setText(TextView text);
  /// As the user types: the text and where the cursor stands after it.
  void type(TextView text, int cursor);
  int cursor() const { return cursor_; }
  void setCursor(int cursor) { assign(cursor_, cursor); }

 private:
  Text text_;
  int cursor_ = 0;
};

class CheckBox : public Control {
 public:
  /// Raised on every change, by the user or by code.
  std::function<void()> onClick;

  bool checked() const { return checked_; }
  void setChecked(bool checked) {
    if (assign(checked_, checked) && onClick) onClick();
  }
  /// As the user clicks: flips the mark unless the box is disabled.
  void click() {
    if (enabled() && visible()) setChecked(!checked_);
  }

 private:
  bool checked_ = false;
};

/// One of several that exclude each other; none of a group may be set.
class OptionButton : public Control {
 public:
  /// Raised when the option becomes set, by the user or by code.
  std::function<void()> onClick;

  bool chosen() const { return chosen_; }
  /// Setting one clears the others of its group.
  void setChosen(bool chosen);
  void click() {
    if (enabled() && visible()) setChosen(true);
  }
  static void makeGroup(std::initializer_list<OptionButton*> options);

 private:
  bool chosen_ = false;
  std::vector<OptionButton*> others_;
};

struct ComboRow {
  Text text;
  int itemData = 0;
  bool operator==(const ComboRow&) const = default;
};

/// A text box with a list of proposals; any text may be typed.
class ComboBox : public Control {
 public:
  std::function<void()> onChange;

  const Text& text() const { return text_; }
  void setText(TextView text) {
    if (assign(text_, text) && onChange) onChange();
  }
  const std::vector<ComboRow>& rows() const { return rows_; }
  void setRows(std::vector<ComboRow> rows) { assign(rows_, std::move(rows)); }

 private:
  Text text_;
  std::vector<ComboRow> rows_;
};

/// A tree of the machine's folders with one of them shown.
class FolderBox : public Control {
 public:
  /// Raised when the user clicks a folder.
  std::function<void()> onClick;
  /// Raised when folders from another program are dropped here.
  std::function<void(const std::vector<Text>& paths)> onDropFolders;

  const Text& path() const { return path_; }
  /// Shows a folder; one that does not exist leaves the tree at its nearest parent.
  void setPath(Text path) { assign(path_, std::move(path)); }
  void click(Text path) {
    setPath(std::move(path));
    if (onClick) onClick();
  }

 private:
  Text path_;
};

/// A knob on a track; the share of the track runs from 0 to 1.
class Slider : public Control {
 public:
  std::function<void()> onPress;
  std::function<void()> onMove;
  std::function<void()> onRelease;

  double share() const { return share_; }
  void setShare(double share) { assign(share_, share); }

 private:
  double share_ = 0;
};

/// Percentage of a job done, 0 to 100.
class ProgressBar : public Control {
 public:
  double percent() const { return percent_; }
  void setPercent(double percent) { assign(percent_, percent); }

 private:
  double percent_ = 0;
};

}  // namespace velmora::ui
