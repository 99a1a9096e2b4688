#pragma once

#include <algorithm>
#include <initializer_list>

#include <QBoxLayout>
#include <QColor>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

/// The one grid that all windows are laid out on, and the few shapes that they are made of.
namespace velmora::qt {

constexpr int unit = 4;
constexpr int tight = unit;        ///< between a thing and what belongs to it
constexpr int gap = 2 * unit;      ///< between neighbours
constexpr int edge = 4 * unit;     ///< around a pane or dialog
constexpr int section = 5 * unit;  ///< between groups

/// A column or row without margins.
QVBoxLayout* column(QWidget* parent = nullptr, int spacing = gap);
QHBoxLayout* row(QWidget* parent = nullptr, int spacing = gap);

/// A heading of a group: bold, a little smaller and dimmed.
QLabel* heading(const QString& text);
/// Dimmed text for what is of second rank.
QLabel* secondary(const QString& text = {});
/// A hairline across. It is drawn by hand, since the lines of styles differ in weight.
QWidget* line();
/// The same upright, between groups in a row.
QWidget* uprightLine();
/// The colour of hairlines, in step with the palette.
QColor lineColour(const QPalette& palette);
/// A button with an icon; `caption` bears the mnemonic.
QPushButton* button(const QString& caption, const QString& icon = {});
/// A box for a line of text.
QLineEdit* textField();
/// Makes room around the text of a control, where its style leaves little.
template <typename Widget>
Widget* roomy(Widget* widget) {
  widget->setMinimumHeight(std::max(7 * unit, widget->fontMetrics().height() + 3 * unit));
  return widget;
}

/// Another size of font than its neighbours have.
template <typename Widget>
Widget* scaled(Widget* widget, double factor) {
  QFont font = widget->font();
  font.setPointSizeF(font.pointSizeF() * factor);
  widget->setFont(font);
  return widget;
}

/// Gives a widget the name that a screen reader speaks, and a tooltip.
template <typename Widget>
Widget* described(Widget* widget, const QString& name, const QString& tip) {
  widget->setAccessibleName(name);
  widget->setToolTip(tip);
  return widget;
}

/// A caption with its mnemonic for `field`, right above or beside it.
QLabel* caption(const QString& text, QWidget* field);

/// The row that a dialog ends with: `left` at its left edge, then the buttons at its right edge.
QHBoxLayout* dialogButtons(std::initializer_list<QWidget*> buttons, QWidget* left = nullptr);

}  // namespace velmora::qt
