#include <cmath>

#include <QElapsedTimer>
#include <QProgressBar>
#include <QSlider>

#include "qt/bind.h"

namespace velmora::qt {

namespace {

constexpr int steps = 1000;
constexpr int frameMilliseconds = 33;

int stepOf(double share) {
  return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * steps));
}

}  // namespace

void bindSlider(Refresher& refresher, ui::Slider& model, QSlider* widget) {
  widget->setRange(0, steps);
  bindControl(refresher, model, widget);
  refresher.watch(model, widget, [&model, widget] {
    const QSignalBlocker quiet(widget);
    if (!widget->isSliderDown()) widget->setValue(stepOf(model.share()));
  });
  const auto raise = [](const std::function<void()>& event) {
    if (event) event();
  };
  QObject::connect(widget, &QSlider::sliderPressed, widget, [&model, raise] { raise(model.onPress); });
  QObject::connect(widget, &QSlider::valueChanged, widget, [&model, raise](int value) {
    model.setShare(static_cast<double>(value) / steps);
    raise(model.onMove);
  });
  QObject::connect(widget, &QSlider::sliderReleased, widget, [&model, raise] { raise(model.onRelease); });
}

void bindProgressBar(Refresher& refresher, ui::ProgressBar& model, QProgressBar* widget) {
  widget->setRange(0, steps);
  bindControl(refresher, model, widget);
  const auto show = [&model, widget] { widget->setValue(stepOf(model.percent() / 100)); };
  refresher.watch(model, widget, show);
  QElapsedTimer sinceRepaint;
  sinceRepaint.start();
  refresher.watch(
      model, widget,
      [show, widget, sinceRepaint]() mutable {
        if (!widget->isVisible() || sinceRepaint.elapsed() < frameMilliseconds) return;
        show();
        widget->repaint();
        sinceRepaint.start();
      },
      Refresher::Pace::EachChange);
}

}  // namespace velmora::qt
