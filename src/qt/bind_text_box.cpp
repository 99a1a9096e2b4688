#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "qt/bind.h"
#include "qt/keys.h"
#include "qt/text.h"

namespace velmora::qt {

namespace {

// Offers each key to the model before the box acts on it, and tells it of the cursor that a box without focus
// did not keep.
class TextBoxEvents final : public QObject {
 public:
  TextBoxEvents(ui::TextBox& model, QLineEdit* line) : QObject(line), model_(model), line_(line) {
    line->installEventFilter(this);
    model.undoEdit = [line] { line->undo(); };
  }
  ~TextBoxEvents() override { model_.undoEdit = nullptr; }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) model_.setCursor(line_->cursorPosition());
    if (event->type() != QEvent::KeyPress || !model_.onKey) return false;
    const auto press = keyPress(static_cast<QKeyEvent&>(*event));
    return press && model_.onKey(*press);
  }

 private:
  ui::TextBox& model_;
  QLineEdit* line_;
};

void showText(QLineEdit* line, const Text& text) {
  const QString wanted = toQString(text);
  if (line->text() == wanted) return;
  line->setText(wanted);
  if (!line->hasFocus()) line->home(false);
}

void bindProposals(Refresher& refresher, ui::ComboBox& model, QComboBox* widget) {
  bindControl(refresher, model, widget);
  refresher.watch(model, widget, [&model, widget, rows = std::vector<ui::ComboRow>()]() mutable {
    const QSignalBlocker quiet(widget);
    if (rows != model.rows()) {
      rows = model.rows();
      widget->clear();
      for (const ui::ComboRow& row : rows) widget->addItem(shown(row.text));
    }
    if (widget->currentText() == toQString(model.text())) return;
    widget->setCurrentIndex(
        widget->findText(toQString(model.text()), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (widget->lineEdit()) showText(widget->lineEdit(), model.text());
  });
}

}  // namespace

void bindTextBox(Refresher& refresher, ui::TextBox& model, QLineEdit* widget) {
  bindControl(refresher, model, widget);
  new TextBoxEvents(model, widget);
  refresher.watch(model, widget, [&model, widget] {
    const QSignalBlocker quiet(widget);
    showText(widget, model.text());
    if (widget->hasFocus() && widget->cursorPosition() != model.cursor())
      widget->setCursorPosition(model.cursor());
  });
  QObject::connect(widget, &QLineEdit::textChanged, widget, [&model, widget](const QString& text) {
    model.type(toText(text), widget->cursorPosition());
  });
  QObject::connect(widget, &QLineEdit::cursorPositionChanged, widget,
                   [&model](int, int cursor) { model.setCursor(cursor); });
}

void bindComboBox(Refresher& refresher, ui::ComboBox& model, QComboBox* widget) {
  widget->setEditable(true);
  widget->setInsertPolicy(QComboBox::NoInsert);
  bindProposals(refresher, model, widget);
  QObject::connect(widget, &QComboBox::editTextChanged, widget,
                   [&model](const QString& text) { model.setText(toText(text)); });
}

void bindChoice(Refresher& refresher, ui::ComboBox& model, QComboBox* widget) {
  bindProposals(refresher, model, widget);
  QObject::connect(widget, &QComboBox::activated, widget, [&model](int index) {
    if (index < static_cast<int>(model.rows().size()))
      model.setText(model.rows()[static_cast<std::size_t>(index)].text);
  });
}

}  // namespace velmora::qt
