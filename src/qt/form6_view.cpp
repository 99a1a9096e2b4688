#include <QCheckBox>
#include <QRadioButton>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int indent = 6 * unit;

// One check of the review with the options that belong to it, indented below.
class Check {
 public:
  Check(Refresher& refresher, QVBoxLayout* layout) : refresher_(refresher) {
    layout->addLayout(group_);
    details_->setContentsMargins(indent, 0, 0, 0);
  }

  Check& title(const QString& text, ui::CheckBox& model) {
    group_->addWidget(box(text, model, {}));
    group_->addLayout(details_);
    return *this;
  }
  Check& detail(const QString& text, ui::CheckBox& model, const QString& tip = {}) {
    details_->addWidget(box(text, model, tip));
    return *this;
  }
  Check& option(const QString& text, ui::OptionButton& model) {
    auto* widget = described(new QRadioButton(text), QString(text).remove(u'&'), {});
    bindOptionButton(refresher_, model, widget);
    details_->addWidget(widget);
    return *this;
  }
  void end() { details_->addStretch(); }

 private:
  QCheckBox* box(const QString& text, ui::CheckBox& model, const QString& tip) {
    auto* widget = described(new QCheckBox(text), QString(text).remove(u'&').simplified(), tip);
    bindCheckBox(refresher_, model, widget);
    return widget;
  }

  Refresher& refresher_;
  QVBoxLayout* group_ = column();
  QHBoxLayout* details_ = row(nullptr, edge);
};

}  // namespace

DialogWindow* makeForm6(const ViewContext& context, ui::Form6& form6) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);
  Check(refresher, layout)
      .title("Check filename &syntax", form6.fix1a)
      .detail("Artist    -", form6.fixj2)
      .detail("Title", form6.fixj3)
      .detail("A&utomatic", form6.fix7, "When found wrong syntax, ask me before change")
      .end();
  Check(refresher, layout)
      .title("Check &numbers in filename", form6.fix4)
      .detail("Artist    -", form6.fix11)
      .detail("Title", form6.fix12)
      .end();
  Check(refresher, layout).title("Check does e&xist artist part in filename", form6.fix5).end();
  Check(refresher, layout).title("Check &artist ( when filename haves 2 or more dashes)", form6.fix9).end();
  Check(refresher, layout)
      .title("Check &diffrence between filename And ID3", form6.fix6)
      .option("Dominant &filename", form6.fixo7)
      .option("Dominant &ID3", form6.fixo8)
      .detail("Au&tomatic", form6.fix8, "When found diffrence, ask me before change")
      .end();
  layout->addWidget(line());
  Check(refresher, layout).title("Auto &play file", form6.fix16).end();
  addOkCancel(refresher, layout, form6.ok, form6.cancel);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, form6, dialog);
  return dialog;
}

}  // namespace velmora::qt
