#include <QLabel>

#include "qt/bind.h"
#include "qt/colours.h"
#include "qt/text.h"

namespace velmora::qt {

void bindControl(Refresher& refresher, ui::Control& model, QWidget* widget) {
  refresher.watch(model, widget, [&model, widget, focusRequests = model.focusRequests()]() mutable {
    widget->setEnabled(model.enabled());
    // One that was not told to hide is shown along with its window, and must not open as a window before.
    const bool hidden = widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden();
    if (hidden == model.visible()) widget->setVisible(model.visible());
    if (focusRequests != model.focusRequests()) widget->setFocus(Qt::OtherFocusReason);
    focusRequests = model.focusRequests();
  });
}

void bindLabel(Refresher& refresher, ui::Label& model, QLabel* widget, const QString& whenEmpty) {
  widget->setTextFormat(Qt::PlainText);
  bindControl(refresher, model, widget);
  refresher.watch(model, widget, [&model, widget, whenEmpty] {
    const bool empty = model.text().empty();
    if (!whenEmpty.isEmpty())
      widget->setForegroundRole(empty ? QPalette::PlaceholderText : QPalette::WindowText);
    widget->setText(empty ? whenEmpty : shown(model.text()).trimmed());
    if (!model.colour() && !widget->testAttribute(Qt::WA_SetPalette)) return;
    QPalette palette;
    if (model.colour())
      palette.setColor(QPalette::WindowText,
                       inkFor(*model.colour(), palette.color(QPalette::Window), palette));
    widget->setPalette(palette);
  });
}

}  // namespace velmora::qt
