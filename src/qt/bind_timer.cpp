#include <QTimer>

#include "qt/bind.h"

namespace velmora::qt {

void bindTimer(Refresher& refresher, ui::Timer& model, QObject* owner) {
  auto* timer = new QTimer(owner);
  timer->setInterval(model.milliseconds());
  refresher.watch(model, timer, [&model, timer] {
    if (timer->interval() != model.milliseconds()) timer->setInterval(model.milliseconds());
    if (timer->isActive() == model.on()) return;
    model.on() ? timer->start() : timer->stop();
  });
  QObject::connect(timer, &QTimer::timeout, timer, [&model] { model.tick(); });
}

}  // namespace velmora::qt
