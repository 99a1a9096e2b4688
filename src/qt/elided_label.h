#pragma once

#include <QLabel>

namespace velmora::qt {

/// A line of text that is shortened in the middle where there is no room; its tooltip then shows it whole.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override { return {fontMetrics().height() * 3, QLabel::sizeHint().height()}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool fits() const;
};

}  // namespace velmora::qt
