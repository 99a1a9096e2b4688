#pragma once

#include <functional>

#include "qt/list_model.h"
#include "qt/refresher.h"
#include "ui/controls.h"
#include "ui/list_box.h"
#include "ui/timer.h"

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QSlider;
class QWidget;

/// One binding per control kind: the widget shows its model, and what the user does with the widget is done
/// to the model. A binding ends with its widget; the model must outlive it.
namespace velmora::qt {

class FolderTree;
class ListView;

/// Enabled and visible, which every control has. A hidden control gives its room to the others.
void bindControl(Refresher& refresher, ui::Control& model, QWidget* widget);

/// Without the blanks around the text. `whenEmpty` is shown, dimmed, in place of an empty one.
void bindLabel(Refresher& refresher, ui::Label& model, QLabel* widget, const QString& whenEmpty = {});
void bindButton(Refresher& refresher, ui::Button& model, QAbstractButton* widget);
void bindAction(Refresher& refresher, ui::Button& model, QAction* action);
void bindCheckBox(Refresher& refresher, ui::CheckBox& model, QAbstractButton* widget);
void bindCheckAction(Refresher& refresher, ui::CheckBox& model, QAction* action);
/// The widgets of one group share a parent and are auto-exclusive there.
void bindOptionButton(Refresher& refresher, ui::OptionButton& model, QAbstractButton* widget);
/// Keeps the cursor in step. While the box has no focus it shows the start of its text.
void bindTextBox(Refresher& refresher, ui::TextBox& model, QLineEdit* widget);
void bindComboBox(Refresher& refresher, ui::ComboBox& model, QComboBox* widget);
/// Of the proposals alone; no other text can be typed.
void bindChoice(Refresher& refresher, ui::ComboBox& model, QComboBox* widget);
void bindFolderBox(Refresher& refresher, ui::FolderBox& model, FolderTree* widget);
void bindSlider(Refresher& refresher, ui::Slider& model, QSlider* widget);
/// Repaints at once when no events were handled for a while, so that the bar moves during a long command.
void bindProgressBar(Refresher& refresher, ui::ProgressBar& model, QProgressBar* widget);
/// Beats as long as the model is on.
void bindTimer(Refresher& refresher, ui::Timer& model, QObject* owner);
void bindList(Refresher& refresher, ui::ListBox& model, ListView* widget, Rows rows = Rows::Plain);

/// While `option` is checked, the list takes the focus when the mouse moves over it.
void focusUnderMouse(const ui::CheckBox& option, ListView* list);

}  // namespace velmora::qt
