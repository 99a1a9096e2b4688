#pragma once

#include <QMainWindow>

#include "qt/bind_window.h"
#include "ui/form3.h"

namespace velmora::qt {

/// The Music Base Window: its menus, and as long as there are no lists to show, what to do next.
class Form3View : public QMainWindow {
  Q_OBJECT

 public:
  Form3View(const ViewContext& context, ui::Form3& form3);

 private:
  void makeMenus(Refresher& refresher, ui::Form3& form3);
  QWidget* makeWelcome(Refresher& refresher, ui::Form3& form3);
};

}  // namespace velmora::qt
