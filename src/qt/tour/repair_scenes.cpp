#include <memory>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "qt/list_view.h"
#include "qt/tour/scenes.h"

namespace velmora::qt {

namespace {

Stage::Ready idle(ui::Windows& windows) {
  return [&windows] {
    return windows.form1.enabled() && !windows.dialog1.visible() && !QApplication::activeModalWidget();
  };
}

Stage::Ready undoStands(ui::Windows& windows, bool stands) {
  return [&windows, stands, ready = idle(windows)] {
    return ready() && windows.form1.repair.undoLastOperation.enabled() == stands;
  };
}

// A menu waits in a loop of its own, in which the script goes on.
void openMenu() {
  auto* list = qobject_cast<ListView*>(Stage::find("Files"));
  if (!list) return;
  const QPoint place = list->visualRect(list->currentIndex()).center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
  QApplication::sendEvent(list->viewport(), &event);
}

void undoFromList() {
  QWidget* list = Stage::find("Files");
  if (!list) return;
  list->window()->activateWindow();
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
}

void closeMenu() {
  if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) menu->close();
}

void addDelete(Stage& stage, ui::Windows& windows) {
  const auto before = std::make_shared<int>();
  stage.when(idle(windows), [&windows, before] {
    *before = windows.form1.List4.ListCount();
    Stage::press("Delete");
  });
  stage.picture("delete-question", [] { return QApplication::activeModalWidget() != nullptr; });
  stage.then([] { Stage::answer("OK"); });
  const auto lists = [&windows, ready = idle(windows)](int files) {
    return ready() && windows.form1.List4.ListCount() == files;
  };
  stage.picture("deleted", [before, lists] { return lists(*before - 4); });
  stage.when(undoStands(windows, true), undoFromList);
  stage.picture("undeleted", [before, lists] { return lists(*before); });
}

}  // namespace

void addRepair(Stage& stage, ui::Windows& windows) {
  stage.when(idle(windows), [] { Stage::clickRow("Files", 0); });
  stage.then([] { Stage::clickRow("Files", 3, Qt::ShiftModifier); });
  stage.picture("several-songs", idle(windows));
  stage.then([] { QMetaObject::invokeMethod(qApp, openMenu, Qt::QueuedConnection); });
  stage.picture("files-menu", [] { return QApplication::activePopupWidget() != nullptr; });
  stage.then(closeMenu);
  const auto before = std::make_shared<Text>();
  stage.when(idle(windows), [&windows, before] {
    *before = windows.form1.List4.List(0);
    Stage::press("Fix Syntax");
  });
  stage.picture("syntax-fixed", undoStands(windows, true));
  stage.then([] { Stage::press("Album for all selected files"); });
  stage.when(idle(windows), [] { Stage::type("Album", "Harbour Lights, Disc 1"); });
  stage.then([] { Stage::press("UPDATE"); });
  stage.picture("album-written", idle(windows));
  stage.then([] { Stage::press("Album for all selected files"); });
  stage.when(idle(windows), undoFromList);
  stage.when(idle(windows), [] { Stage::press("UNDO"); });
  stage.picture("undone", [&windows, before, ready = idle(windows)] {
    return ready() && windows.form1.List4.List(0) == *before;
  });
  addDelete(stage, windows);
  stage.when(idle(windows), [] { Stage::doubleClickRow("Files", 3); });
  stage.picture("playing", [&windows] { return windows.form1.player.time.text() >= u"00:02"; });
  stage.then([] { Stage::press("Stop"); });
}

}  // namespace velmora::qt
