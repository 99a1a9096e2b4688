#include <QAbstractButton>
#include <QAction>

#include "qt/bind.h"
#include "qt/colours.h"
#include "qt/text.h"

namespace velmora::qt {

namespace {

void bindAvailability(Refresher& refresher, ui::Control& model, QAction* action) {
  refresher.watch(model, action, [&model, action] {
    action->setEnabled(model.enabled());
    action->setVisible(model.visible());
  });
}

// What the model says, with the mnemonic of the caption that the view gave.
QString captionOf(const ui::Button& model, const QString& given) {
  QString text = shown(model.caption()).trimmed().replace(u'&', QStringLiteral("&&"));
  const qsizetype mark = given.indexOf(u'&');
  if (mark < 0 || mark + 1 == given.size()) return text;
  const qsizetype place = text.indexOf(given[mark + 1]);
  return place < 0 ? text : text.insert(place, u'&');
}

}  // namespace

void bindButton(Refresher& refresher, ui::Button& model, QAbstractButton* widget) {
  bindControl(refresher, model, widget);
  refresher.watch(model, widget, [&model, widget, given = widget->text()] {
    if (!model.caption().empty()) widget->setText(captionOf(model, given));
    if (!model.colour() && !widget->testAttribute(Qt::WA_SetPalette)) return;
    widget->setPalette(model.colour() ? groundFor(*model.colour(), {}) : QPalette());
  });
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&model] { model.click(); });
}

void bindAction(Refresher& refresher, ui::Button& model, QAction* action) {
  bindAvailability(refresher, model, action);
  refresher.watch(model, action, [&model, action, given = action->text()] {
    if (!model.caption().empty()) action->setText(captionOf(model, given));
  });
  QObject::connect(action, &QAction::triggered, action, [&model] { model.click(); });
}

void bindCheckBox(Refresher& refresher, ui::CheckBox& model, QAbstractButton* widget) {
  widget->setCheckable(true);
  bindControl(refresher, model, widget);
  const auto show = [&model, widget] { widget->setChecked(model.checked()); };
  refresher.watch(model, widget, show);
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&model, show] {
    model.click();
    show();  // the model may have refused
  });
}

void bindCheckAction(Refresher& refresher, ui::CheckBox& model, QAction* action) {
  action->setCheckable(true);
  bindAvailability(refresher, model, action);
  const auto show = [&model, action] { action->setChecked(model.checked()); };
  refresher.watch(model, action, show);
  QObject::connect(action, &QAction::triggered, action, [&model, show] {
    model.click();
    show();
  });
}

void bindOptionButton(Refresher& refresher, ui::OptionButton& model, QAbstractButton* widget) {
  widget->setCheckable(true);
  widget->setAutoExclusive(true);
  bindControl(refresher, model, widget);
  const auto show = [&model, widget] {
    if (widget->isChecked() == model.chosen()) return;
    // Of an exclusive group the toolkit lets nobody take the last mark away; the model may.
    widget->setAutoExclusive(false);
    widget->setChecked(model.chosen());
    widget->setAutoExclusive(true);
  };
  refresher.watch(model, widget, show);
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&model, show] {
    model.click();
    show();
  });
}

}  // namespace velmora::qt
