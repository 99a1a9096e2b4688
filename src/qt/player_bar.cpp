#include "qt/player_bar.h"

#include <QKeyEvent>
#include <QProxyStyle>
#include <QSlider>
#include <QToolButton>

#include "qt/bind.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

constexpr int soundWidth = 24 * unit;

// A click on the track takes the knob there, in any style.
class JumpStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Slider_AbsoluteSetButtons) return Qt::LeftButton;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

class Track : public QSlider {
 public:
  Track() : QSlider(Qt::Horizontal) {
    auto* jump = new JumpStyle;
    jump->setParent(this);
    setStyle(jump);
    setSingleStep(20);
    setPageStep(100);
  }

 protected:
  static bool alongTheRow(const QKeyEvent& event) {
    return event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
  }
};

// A key holds the knob as the mouse does, until it is let go.
class PositionTrack final : public Track {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (alongTheRow(*event) && !event->isAutoRepeat()) setSliderDown(true);
    QSlider::keyPressEvent(event);
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    if (alongTheRow(*event) && !event->isAutoRepeat()) setSliderDown(false);
    QSlider::keyReleaseEvent(event);
  }
  void focusOutEvent(QFocusEvent* event) override {
    if (isSliderDown()) setSliderDown(false);
    QSlider::focusOutEvent(event);
  }
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// Left and Right do not touch the sound; Up and Down do.
class SoundTrack final : public Track {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (alongTheRow(*event)) return event->ignore();
    QSlider::keyPressEvent(event);
  }
};

QWidget* playerButton(Refresher& refresher, ui::Button& model, const QString& icon, const QString& name,
                      const QString& tip) {
  auto* button = described(new QToolButton, name, tip);
  button->setIcon(glyph(icon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setMinimumSize(7 * unit, 7 * unit);
  bindButton(refresher, model, button);
  return button;
}

}  // namespace

QWidget* makePlayerBar(Refresher& refresher, ui::Form1& form1) {
  ui::PlayerPanel& player = form1.player;
  auto* bar = new QWidget;
  QHBoxLayout* layout = row(bar);
  QHBoxLayout* buttons = row(nullptr, 0);
  buttons->addWidget(playerButton(refresher, player.play, "play", "Play", "Play"));
  buttons->addWidget(playerButton(refresher, player.pause, "pause", "Pause", "Pause"));
  buttons->addWidget(playerButton(refresher, player.stop, "stop", "Stop", "Stop, and back to the start"));
  layout->addLayout(buttons);

  auto* position = described(new PositionTrack, "Position", "How far the song is");
  bindSlider(refresher, player.position, position);
  layout->addWidget(position, 1);
  auto* time = described(new QLabel, "Time", "Minutes and seconds of the position");
  time->setMinimumWidth(time->fontMetrics().horizontalAdvance("000:00"));
  bindLabel(refresher, player.time, time);
  layout->addWidget(time);
  layout->addSpacing(gap);

  auto* sign = new QLabel;
  sign->setPixmap(glyph("sound").pixmap(QSize(4 * unit, 4 * unit), bar->devicePixelRatioF()));
  layout->addWidget(sign);
  auto* sound = described(new SoundTrack, "Sound", "Sound of the player");
  sound->setFixedWidth(soundWidth);
  bindSlider(refresher, form1.preview, sound);
  layout->addWidget(sound);
  return bar;
}

}  // namespace velmora::qt
