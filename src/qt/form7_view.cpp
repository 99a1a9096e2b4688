#include <QCheckBox>
#include <QRadioButton>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"

namespace velmora::qt {

DialogWindow* makeForm7(const ViewContext& context, ui::Form7& form7) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);
  layout->addWidget(secondary("Two files are duplicates when they have"));

  QVBoxLayout* rules = column();
  const auto add = [&](const QString& text, const QString& tip, ui::OptionButton& model) {
    auto* widget = described(new QRadioButton(text), QString(text).remove(u'&').simplified(), tip);
    bindOptionButton(refresher, model, widget);
    rules->addWidget(widget);
  };
  add("&Similar filename", "Names that are alike", form7.similarFilename);
  add("&Complete the same   (Without numbers)", "Names that differ in numbers alone", form7.completeTheSame);
  add("&Different filename", "Whatever the names, the same size", form7.differentFilename);
  layout->addLayout(rules);
  layout->addWidget(line());
  auto* size = described(new QCheckBox("Same &filesize"), "Same filesize", "Their sizes must be equal too");
  bindCheckBox(refresher, form7.sameFilesize, size);
  layout->addWidget(size);
  addOkCancel(refresher, layout, form7.ok, form7.cancel);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, form7, dialog);
  return dialog;
}

}  // namespace velmora::qt
