#pragma once

#include <QMainWindow>

#include "qt/bind_window.h"
#include "ui/windows.h"

namespace velmora::qt {

/// The Music Base Window: the base in four columns, above them its folder and the ways to the other windows,
/// below them the player. While no folder is chosen, what to do first.
class Form3View : public QMainWindow {
  Q_OBJECT

 public:
  /// The player and the undo of MOVE are those of the other windows.
  Form3View(const ViewContext& context, ui::Windows& windows);

 private:
  void makeMenus(Refresher& refresher, ui::Form3& form3, ui::Form2& form2);
  QWidget* makeTopBar(Refresher& refresher, ui::Form3& form3);
};

/// The parts that it is made of, each for itself so that it can be read on a page.
QWidget* makeWelcome(Refresher& refresher, ui::Form3& form3);
/// `hideButtons` is offered in the menu of each list, too, since the menu bar may be hidden.
QWidget* makeBaseColumns(Refresher& refresher, ui::Form3& form3, QAction* hideButtons);

}  // namespace velmora::qt
