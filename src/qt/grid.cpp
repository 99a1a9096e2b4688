#include "qt/grid.h"

#include <QPainter>

#include "qt/icons.h"

namespace velmora::qt {

namespace {

class Hairline final : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), lineColour(palette())); }
};

}  // namespace

QVBoxLayout* column(QWidget* parent, int spacing) {
  auto* layout = new QVBoxLayout(parent);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing);
  return layout;
}

QHBoxLayout* row(QWidget* parent, int spacing) {
  auto* layout = new QHBoxLayout(parent);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing);
  return layout;
}

QLabel* heading(const QString& text) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* secondary(const QString& text) {
  auto* label = new QLabel(text);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

QWidget* line() {
  auto* made = new Hairline;
  made->setFixedHeight(1);
  return made;
}

QWidget* uprightLine() {
  auto* made = new Hairline;
  made->setFixedWidth(1);
  return made;
}

QColor lineColour(const QPalette& palette) {
  QColor colour = palette.color(QPalette::WindowText);
  colour.setAlphaF(0.18F);
  return colour;
}

QPushButton* button(const QString& caption, const QString& icon) {
  auto* made = new QPushButton(caption);
  if (!icon.isEmpty()) made->setIcon(glyph(icon));
  made->setAutoDefault(false);
  made->setMinimumWidth(made->sizeHint().width() + 2 * gap);
  return roomy(made);
}

QLineEdit* textField() {
  auto* field = new QLineEdit;
  field->setTextMargins(tight / 2, 0, tight / 2, 0);
  return roomy(field);
}

QLabel* caption(const QString& text, QWidget* field) {
  auto* label = new QLabel(text);
  label->setBuddy(field);
  return label;
}

QHBoxLayout* dialogButtons(std::initializer_list<QWidget*> buttons, QWidget* left) {
  QHBoxLayout* layout = row();
  if (left) layout->addWidget(left);
  layout->addStretch();
  for (QWidget* each : buttons) layout->addWidget(each);
  return layout;
}

}  // namespace velmora::qt
