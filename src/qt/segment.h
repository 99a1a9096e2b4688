#pragma once

#include <QAbstractButton>

namespace velmora::qt {

/// One of a few options that stand side by side as one control. Drawn by hand: the pressed buttons of styles
/// hardly differ from the others in dark palettes.
class Segment : public QAbstractButton {
  Q_OBJECT

 public:
  explicit Segment(const QString& text);

  enum class Place { First, Middle, Last, Only };
  void setPlace(Place place) { place_ = place; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Place place_ = Place::Only;
};

/// Puts segments side by side.
QWidget* joined(std::initializer_list<Segment*> segments);

}  // namespace velmora::qt
