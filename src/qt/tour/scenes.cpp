#include "qt/tour/scenes.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include "qt/text.h"

namespace velmora::qt {

namespace {

constexpr int crowdSize = 20000;

// Nothing runs, and nothing is asked.
Stage::Ready idle(ui::Windows& windows) {
  return [&windows] {
    return windows.form1.enabled() && !windows.dialog1.visible() && !QApplication::activeModalWidget();
  };
}

Stage::Ready asked() {
  return [] { return QApplication::activeModalWidget() != nullptr; };
}

Stage::Ready seen(const QString& title) {
  return [title] { return Stage::sees(title); };
}

void addFolder(Stage& stage, ui::Windows& windows, const QString& folder) {
  stage.when(idle(windows), [&windows, folder] {
    windows.form1.folderTree.click(toText(QDir::toNativeSeparators(folder)));
  });
  stage.then([] { Stage::press("Add"); });
}

void addStart(Stage& stage, ui::Windows& windows) {
  stage.picture("first-start", seen("Tip of the Day"));
  stage.then([] { Stage::press("Show Tips at Startup"); });
  stage.then([] { Stage::press("OK"); });
  stage.picture("music-base-empty", idle(windows));
  stage.then([] { Stage::choose("Show Processing Window"); });
  stage.picture("processing-window-empty", seen("Processing Window"));
}

void addProgress(Stage& stage, ui::Windows& windows, const QString& crowd) {
  addFolder(stage, windows, crowd);
  stage.pictureAtOnce("adding", [&windows] {
    return windows.dialog1.visible() && windows.dialog1.bar.percent() > 20 && Stage::sees("Please Wait ...");
  });
  stage.then([] { Stage::press("Stop"); });
  stage.when(idle(windows), [] { Stage::press("New List"); });
  stage.picture("new-list-question", asked());
  stage.then([] { Stage::answer("OK"); });
}

void addList(Stage& stage, ui::Windows& windows, const QString& music) {
  addFolder(stage, windows, music + "/New music");
  stage.picture("list", idle(windows));
  stage.then([] { Stage::clickRow("Files", 2); });
  stage.picture("song", [&windows] { return !windows.form1.Text1.text().empty(); });
  stage.then([] { Stage::type("File name", "arv"); });
  stage.picture("artist-completion", [] { return Stage::find("Artists") != nullptr; });
  stage.then([] { QTest::keyClick(Stage::find("File name"), Qt::Key_Escape); });
  stage.then([] { Stage::clickRow("Files", 2); });
  stage.then([] { Stage::type("Title", "Paper Boats (live)"); });
  stage.then([&windows] {
    if (!windows.form1.tags.writeID3v2.checked()) Stage::press("Write ID3v2");
  });
  stage.then([] { Stage::press("UPDATE"); });
  stage.picture("tag-written", idle(windows));
  stage.then([] { Stage::press("Add"); });
  stage.picture("already-listed", asked());
  stage.then([] { Stage::answer("OK"); });
}

void addOtherFiles(Stage& stage, ui::Windows& windows) {
  stage.when(idle(windows), [] { Stage::press("Show Other Files"); });
  stage.picture("other-files-view", idle(windows));
  stage.then([] { Stage::press("Show Music Files"); });
  stage.when(idle(windows), [] { Stage::press("Other Files"); });
  stage.picture("other-files-window", seen("Other Files"));
  stage.then([] { Stage::press("Close"); });
}

void addOptions(Stage& stage, ui::Windows& windows) {
  struct Entry {
    QString text, title, picture, button;
  };
  stage.when(idle(windows), [] { Stage::press("Options"); });
  stage.picture("options-menu");
  for (const Entry& entry :
       {Entry{"Extensions of music files", "Extensions of music files", "extensions", "Cancel"},
        Entry{"Fix Options", "FIX OPTIONS", "fix-options", "Cancel"},
        Entry{"Check+Fix Options", "Check+Fix Options", "check-fix-options", "Cancel"},
        Entry{"Find Duplicates - Settings", "Find Duplicates - Settings", "find-duplicates-settings",
              "Cancel"},
        Entry{"About Velmora", "About Velmora", "about", "OK"}}) {
    stage.when(idle(windows), [entry] { Stage::choose(entry.text); });
    stage.picture(entry.picture, seen(entry.title));
    stage.then([entry] { Stage::press(entry.button); });
  }
}

void addBase(Stage& stage, ui::Windows& windows, const QString& music) {
  stage.when(idle(windows), [] { Stage::clickRow("Files", 0); });
  stage.then([] { QTest::keyClick(Stage::find("Files"), Qt::Key_A, Qt::ControlModifier); });
  for (const char* command : {"FN <-- ID3", "Fix Syntax"})
    stage.when(idle(windows), [command] { Stage::press(command); });
  stage.picture("names-ready", idle(windows));
  stage.when(idle(windows), [] { Stage::press("Assort Files Per Folders"); });
  stage.picture("select-music-base-question", asked());
  stage.then([] { Stage::answer("Yes"); });
  stage.picture("select-music-base", [] {
    QWidget* box = QApplication::activeModalWidget();
    return box && box->findChild<QLineEdit*>("fileNameEdit");
  });
  stage.then([music] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    auto* name = dialog ? dialog->findChild<QLineEdit*>("fileNameEdit") : nullptr;
    if (!name) return;
    name->setText(music + "/Music Base");
    Stage::answer("Choose");
  });
  stage.picture("music-base-chosen", idle(windows));
}

}  // namespace

Crowd::Crowd(const QString& music)
    : folder_(music + "/Large collection"), made_(!folder_.exists() && QDir().mkpath(folder_.path())) {
  if (!made_) return;
  for (int i = 0; i < crowdSize; ++i) {
    QFile file(QStringLiteral("%1/Artist %2 - Title %3.mp3").arg(folder_.path()).arg(i % 700).arg(i));
    if (!file.open(QIODevice::WriteOnly)) return;
  }
}

Crowd::~Crowd() {
  if (made_) folder_.removeRecursively();
}

void addFirstVisit(Stage& stage, ui::Windows& windows, const QString& music, const QString& crowd) {
  addStart(stage, windows);
  addProgress(stage, windows, crowd);
  addList(stage, windows, music);
  addOtherFiles(stage, windows);
  addOptions(stage, windows);
  addRepair(stage, windows);
  addBase(stage, windows, music);
  addRoadIntoBase(stage, windows);
}

void addReturn(Stage& stage, ui::Windows& windows) {
  stage.picture("next-start", [&windows] { return windows.form3.visible() && windows.form3.enabled(); });
  stage.then([] { Stage::choose("Show Processing Window"); });
  stage.when([&windows] { return windows.form1.visible() && windows.form1.enabled(); },
             [] { Stage::clickRow("Files", 4); });
  stage.then([] { Stage::clickRow("Files", 8, Qt::ShiftModifier); });
}

}  // namespace velmora::qt
