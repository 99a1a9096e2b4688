#include <memory>

#include <QApplication>
#include <QTest>

#include "qt/tour/scenes.h"

namespace velmora::qt {

namespace {

// Nothing runs, nothing is asked, and the windows of the base stand open.
Stage::Ready idle(ui::Windows& windows) {
  return [&windows] {
    return windows.form3.visible() && windows.form3.enabled() && !windows.dialog1.visible() &&
           !QApplication::activeModalWidget();
  };
}

Stage::Ready asked() {
  return [] { return QApplication::activeModalWidget() != nullptr; };
}

Stage::Ready lists(ui::Windows& windows, ui::ListBox& list, const Text& row) {
  return [&list, row, ready = idle(windows)] {
    if (!ready()) return false;
    for (int index = 0; index < list.ListCount(); ++index)
      if (list.List(index) == row) return true;
    return false;
  };
}

void addGenre(Stage& stage, ui::Windows& windows) {
  stage.when(idle(windows), [] { Stage::press("New genre"); });
  stage.picture("new-genre-question", asked());
  stage.then([] { Stage::fill("Soundtrack"); });
  stage.then([] { Stage::answer("OK"); });
  stage.picture("genre-made", lists(windows, windows.form3.List1, u"Soundtrack"));
}

void addMoves(Stage& stage, ui::Windows& windows) {
  stage.click("New genres", "Rock");
  stage.click("New artists", "Arvola");
  stage.picture("artist-of-the-base", idle(windows));
  const auto before = std::make_shared<int>();
  stage.then([&windows, before] {
    *before = windows.form1.List4.ListCount();
    Stage::press("MOVE artist");
  });
  stage.picture("artist-moved", [&windows, before, ready = idle(windows)] {
    return ready() && windows.form1.List4.ListCount() < *before;
  });
  stage.when(idle(windows), [] { Stage::beginDrag("New genres", "Alternative"); });
  stage.then([] { Stage::dragOver("Base genres"); });
  stage.picture("genre-dragged");
  stage.then([] { Stage::endDrag(); });
  stage.picture("genre-moved", lists(windows, windows.form3.List1, u"Alternative"));
  stage.click("Base genres", "Alternative");
  stage.then([] { Stage::clickRow("Base titles", 1); });
  stage.picture("moved-songs-in-base", idle(windows));
}

void addYears(Stage& stage, ui::Windows& windows) {
  const auto choose = [&](const QString& year) {
    stage.when(idle(windows), [] { Stage::press("Select Years"); });
    stage.click("Years", year);
  };
  choose("2003");
  stage.picture("select-years");
  stage.then([] { Stage::press("Apply years"); });
  stage.when(idle(windows), [] { Stage::clickRow("Base genres", 0); });
  stage.picture("filtered-by-year", idle(windows));
  choose("<<Show All Years>>");
  stage.then([] { Stage::press("Apply years"); });
}

void addRename(Stage& stage, ui::Windows& windows) {
  stage.click("Base genres", "Rock");
  stage.click("Base artists", "The Brine");
  stage.click("Base albums", "Slack Water");
  stage.then([] { Stage::type("Name of base album", "Slack Water 1999"); });
  stage.then([] { QTest::keyClick(Stage::find("Name of base album"), Qt::Key_Return); });
  stage.picture("rename-question", asked());
  stage.then([] { Stage::answer("OK"); });
  stage.picture("album-renamed", lists(windows, windows.form3.List3, u"Slack Water 1999"));
}

}  // namespace

void addRoadIntoBase(Stage& stage, ui::Windows& windows) {
  stage.when(idle(windows), [] { Stage::press("Scan ID3 Of Every New Music Files"); });
  stage.picture("new-music", lists(windows, windows.form2.List1, u"Rock"));
  addGenre(stage, windows);
  addMoves(stage, windows);
  addYears(stage, windows);
  addRename(stage, windows);
  stage.then([] { Stage::press("Undo Last Operation"); });
  stage.picture("move-undone", lists(windows, windows.form2.List1, u"Alternative"));
  stage.click("Base genres", "Rock");
  stage.click("Base artists", "Arvola");
  stage.click("Base albums", "First Light-2001");
  stage.picture("before-the-end", idle(windows));
}

}  // namespace velmora::qt
