#pragma once

#include <gtest/gtest.h>

#include <QApplication>

#include "qt/views.h"
#include "tests/qt/bench.h"

namespace velmora::qt {

/// All windows of the program, shown, with nothing behind them.
struct AllViews : testing::Test {
  AllViews() {
    for (const auto* each : {u"3", u"b"}) windows.form1.List4.AddItem(Text(u"/music/new/") + each + u".mp3");
    windows.form1.tags.genre.setRows({{u"", 255}, {u"Blues", 0}});
    showAll();
  }
  void showAll() {
    for (ui::Window* window : windows.all()) window->show();
    turn();
  }
  void turn() {
    refresher.flush();
    QCoreApplication::processEvents();
  }
  QList<QWidget*> topLevels() {
    QList<QWidget*> found;
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->isVisible() && !widget->windowTitle().isEmpty()) found.append(widget);
    return found;
  }
  QWidget* window(const QString& title) {
    for (QWidget* widget : topLevels())
      if (widget->windowTitle() == title) return widget;
    return nullptr;
  }
  template <typename Widget = QWidget>
  Widget* named(QWidget* in, const QString& name) {
    for (Widget* widget : in->findChildren<Widget*>())
      if (widget->accessibleName() == name) return widget;
    return nullptr;
  }

  ui::Windows windows;
  Refresher refresher;
  InputGate gate{refresher};
  Views views{windows, {refresher, gate}};
};

}  // namespace velmora::qt
