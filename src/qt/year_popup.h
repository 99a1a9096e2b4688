#pragma once

#include <QFrame>

#include "qt/refresher.h"
#include "ui/form3.h"

namespace velmora::qt {

/// The frame "Select Years": opens below its button, over all else. A click outside of it and Escape stand
/// for Cancel, Enter in the list for OK.
class YearPopup : public QFrame {
  Q_OBJECT

 public:
  YearPopup(Refresher& refresher, ui::YearFrame& years, QWidget* button);

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ui::YearFrame& years_;
  QWidget* button_;
};

}  // namespace velmora::qt
