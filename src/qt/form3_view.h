#pragma once

#include <QMainWindow>

#include "qt/bind_window.h"
#include "ui/form1.h"
#include "ui/form3.h"

namespace velmora::qt {

/// The Music Base Window: the base in four columns, above them its folder and the ways to the other windows,
/// below them the player. While no folder is chosen, what to do first.
class Form3View : public QMainWindow {
  Q_OBJECT

 public:
  /// `form1` holds the player, which plays for this window too.
  Form3View(const ViewContext& context, ui::Form3& form3, ui::Form1& form1);

 private:
  void makeMenus(Refresher& refresher, ui::Form3& form3);
  QWidget* makeTopBar(Refresher& refresher, ui::Form3& form3);
};

/// The parts that it is made of, each for itself so that it can be read on a page.
QWidget* makeWelcome(Refresher& refresher, ui::Form3& form3);
/// `hideButtons` is offered in the menu of each list, too, since the menu bar may be hidden.
QWidget* makeBaseColumns(Refresher& refresher, ui::Form3& form3, QAction* hideButtons);

}  // namespace velmora::qt
