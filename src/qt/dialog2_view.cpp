#include <QCheckBox>
#include <QRadioButton>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int indent = 6 * unit;

QCheckBox* bound(Refresher& refresher, ui::CheckBox& model, const QString& text, const QString& tip) {
  auto* box = described(new QCheckBox(text), QString(text).remove(u'&'), tip);
  bindCheckBox(refresher, model, box);
  return box;
}

// The check of a name part with the three ways of writing it. The ways of one part share a parent widget, so
// that they exclude only each other.
QWidget* makePart(Refresher& refresher, QCheckBox* check, const QString& part,
                  std::initializer_list<ui::OptionButton*> ways) {
  static const char* const names[] = {"EVERY UPPER", "First Upper Of Word", "Only first upper"};
  auto* group = new QWidget;
  QVBoxLayout* layout = column(group);
  layout->addWidget(check);
  QVBoxLayout* options = column();
  options->setContentsMargins(indent, 0, 0, 0);
  const char* const* name = names;
  for (ui::OptionButton* way : ways) {
    auto* option = described(new QRadioButton(*name), part + ": " + *name, {});
    bindOptionButton(refresher, *way, option);
    options->addWidget(option);
    ++name;
  }
  layout->addLayout(options);
  layout->addStretch();
  return group;
}

}  // namespace

DialogWindow* makeDialog2(const ViewContext& context, ui::Dialog2& dialog2) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);
  layout->addWidget(heading("Fix Syntax ( F )"));

  QHBoxLayout* parts = row(nullptr, 2 * section);
  parts->addWidget(makePart(refresher, bound(refresher, dialog2.fix2, "&Artist", "Fix the artist part"),
                            "Artist", {&dialog2.fixo1, &dialog2.fixo2, &dialog2.fixo3}));
  parts->addWidget(makePart(refresher, bound(refresher, dialog2.fix3, "&Title", "Fix the title part"),
                            "Title", {&dialog2.fixo4, &dialog2.fixo5, &dialog2.fixo6}));
  layout->addLayout(parts);

  QHBoxLayout* words = row(nullptr, section);
  words->addWidget(bound(refresher, dialog2.fix13, "( &word )", "Put space between parenthesis"));
  words->addWidget(bound(refresher, dialog2.fix14, "&DJ", "Always DJ upper"));
  words->addWidget(bound(refresher, dialog2.fix15, "&feat", "Always feat lower"));
  words->addStretch();
  layout->addLayout(words);
  layout->addWidget(line());
  layout->addWidget(bound(refresher, dialog2.fix10, "Insert &Removed Numbers Into ID3",
                          "A number that is taken out of the name goes into the track field"));
  addOkCancel(refresher, layout, dialog2.ok, dialog2.cancel);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, dialog2, dialog);
  return dialog;
}

}  // namespace velmora::qt
